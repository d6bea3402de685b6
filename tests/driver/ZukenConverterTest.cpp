#include "neutral/ZukenConverter.h"

#include "tests/blocks/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>

namespace {

/// Collects what goes to `std::cout` in the lifetime.
class OutputCollector {
public:
    OutputCollector() : m_Before(std::cout.rdbuf(m_Stream.rdbuf())) {}
    OutputCollector(const OutputCollector&) = delete;
    OutputCollector& operator=(const OutputCollector&) = delete;
    ~OutputCollector() { std::cout.rdbuf(m_Before); }
    std::string GetText() const { return m_Stream.str(); }

private:
    std::ostringstream m_Stream;
    std::streambuf* m_Before;
};

class ZukenConverterTest : public testing::Test {
protected:
    LongFileName NameOf(const std::string& name) const { return LongFileName(AString(folder.PathOf(name).c_str())); }
    ZukenConverter MakeConverter() const {
        return ZukenConverter(NameOf("b.ftf"), NameOf("b.pcf"), NameOf("b.txt"), NameOf("b.qrl"));
    }

    TemporaryFolder folder;
};

TEST_F(ZukenConverterTest, RunIsFalseAndWritesNothingWithoutAFootprintFile) {
    folder.Put("b.pcf", "");
    EXPECT_FALSE(MakeConverter().Run());
    EXPECT_EQ(folder.List(), std::vector<std::string>{"b.pcf"});
}

TEST_F(ZukenConverterTest, RunIsFalseAndWritesNothingWithoutABoardFile) {
    folder.Put("b.ftf", "");
    EXPECT_FALSE(MakeConverter().Run());
    EXPECT_EQ(folder.List(), std::vector<std::string>{"b.ftf"});
}

TEST_F(ZukenConverterTest, RunIsTrueForFilesThatAreThereWhateverTheyHold) {
    folder.Put("b.ftf", "((");
    folder.Put("b.pcf", "\"");
    const OutputCollector output;
    EXPECT_TRUE(MakeConverter().Run());
    EXPECT_EQ(output.GetText(), "Parsing failed at line: 1 near (\nParsing failed at line: 1 near \"\n");
    EXPECT_EQ(folder.List(), (std::vector<std::string>{"b.ftf", "b.pcf", "b.qrl"}));
}

TEST_F(ZukenConverterTest, ReadFileGivesTheListsOfAFile) {
    folder.Put("b.pcf", "; comment\n(a 1) stray (b (c))");
    io::CBlock block("data");
    EXPECT_TRUE(ZukenConverter::ReadFile(NameOf("b.pcf"), block));
    EXPECT_EQ(block.Pack(), AString("data {\n\ta(1)\n\tb(c())\n}\n"));
}

TEST_F(ZukenConverterTest, ReadFileIsTrueForTextThatCannotBeReadAndKeepsWhatWasComplete) {
    folder.Put("b.pcf", "(a 1)\n((b)");
    io::CBlock block("data");
    const OutputCollector output;
    EXPECT_TRUE(ZukenConverter::ReadFile(NameOf("b.pcf"), block));
    EXPECT_EQ(output.GetText(), "Parsing failed at line: 2 near (b)\n");
    EXPECT_EQ(block.Pack(), AString("data {\n\ta(1)\n}\n"));
}

TEST_F(ZukenConverterTest, ReadFileIsFalseAndSilentForAFileThatCannotBeOpened) {
    io::CBlock block("data");
    const OutputCollector output;
    EXPECT_FALSE(ZukenConverter::ReadFile(NameOf("gone.pcf"), block));
    EXPECT_EQ(output.GetText(), "");
    EXPECT_EQ(block.Size(), 0);
}

/// Cuts a file of the example board after every byte, and runs the rest.
class CutExampleTest : public ZukenConverterTest {
protected:
    CutExampleTest() {
        for (const char* extension : {".pcf", ".ftf", ".txt"})
            folder.Put(std::string("b") + extension, Example(extension));
    }
    static std::string Example(const std::string& extension) { return ContentOf(QRL_EXAMPLES "/board" + extension); }

    /// Runs the board and gives what was said. The output has to be a whole file.
    std::string RunBoard() const {
        const OutputCollector output;
        EXPECT_TRUE(MakeConverter().Run());
        io::CBlock root;
        EXPECT_TRUE(root.Unpack(AString(std::string_view(ContentOf(folder.PathOf("b.qrl"))))));
        EXPECT_EQ(root.Name(), AString("QuorelNeutralFile"));
        return output.GetText();
    }

    void CutAfterEveryByte(const std::string& extension) const {
        const std::string whole = Example(extension);
        const std::string expectedSaid = RunBoard();
        const std::string expectedText = ContentOf(folder.PathOf("b.qrl"));
        std::string said;
        int failures = 0;
        for (size_t size = 0; size <= whole.size() && !HasFailure(); ++size) {
            SCOPED_TRACE(extension + " of " + std::to_string(size) + " bytes");
            // A new file costs much less than to replace one, for which file systems wait until its data is safe.
            for (const std::string& name : {"b" + extension, std::string("b.qrl")})
                std::filesystem::remove(folder.PathOf(name));
            folder.Put("b" + extension, std::string_view(whole).substr(0, size));
            said = RunBoard();
            failures += CountFailures(said);
        }
        EXPECT_GT(failures, 0);
        EXPECT_EQ(said, expectedSaid);
        EXPECT_EQ(ContentOf(folder.PathOf("b.qrl")), expectedText);
    }

    /// How many lines tell of text that can't be read, which one file does once at most.
    static int CountFailures(const std::string& said) {
        int failures = 0;
        std::istringstream lines(said);
        for (std::string line; std::getline(lines, line);)
            failures += line.starts_with("Parsing failed at line: ") ? 1 : 0;
        EXPECT_LE(failures, 1);
        EXPECT_TRUE(said.empty() || said.ends_with('\n')) << said;
        return failures;
    }
};

TEST_F(CutExampleTest, ABoardFileCutAfterEveryByteGivesAWholeOutput) { CutAfterEveryByte(".pcf"); }

TEST_F(CutExampleTest, AFootprintFileCutAfterEveryByteGivesAWholeOutput) { CutAfterEveryByte(".ftf"); }

} // namespace
