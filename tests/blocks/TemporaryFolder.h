#ifndef QRL_TESTS_BLOCKS_TEMPORARYFOLDER_H
#define QRL_TESTS_BLOCKS_TEMPORARYFOLDER_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

/// An empty folder that goes with all its files at the end of the scope.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string name = testing::TempDir() + "qrl_blocks_XXXXXX";
        EXPECT_NE(mkdtemp(name.data()), nullptr);
        m_Path = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() { std::filesystem::remove_all(m_Path); }

    std::string PathOf(const std::string& name) const { return m_Path + "/" + name; }
    /// Makes a file of the folder and gives its path.
    std::string Put(const std::string& name, std::string_view content) const {
        std::ofstream(PathOf(name), std::ios::binary) << content;
        return PathOf(name);
    }
    /// The names of all that the folder holds, sorted.
    std::vector<std::string> List() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_Path))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    std::string m_Path;
};

inline std::string ContentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

#endif
