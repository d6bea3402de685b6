#include "blocks/FileText.h"

#include "lib/utils/LargeMemory.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace io {

namespace {

constexpr size_t k_FirstSize = size_t{64} * 1024; ///< for what doesn't tell its size, such as a pipe

/// Closes the file at the end of a scope.
class Descriptor {
public:
    explicit Descriptor(int value) : m_Value(value) {}
    ~Descriptor() {
        if (m_Value >= 0)
            close(m_Value);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;
    int Get() const { return m_Value; }

private:
    int m_Value;
};

ssize_t ReadSome(int file, char* to, size_t size) {
    ssize_t got = 0;
    do
        got = read(file, to, size);
    while (got < 0 && errno == EINTR);
    return got;
}

} // namespace

FileText::FileText(std::string_view text) : m_Size(text.size()) {
    Resize(m_Size);
    std::copy(text.begin(), text.end(), m_Bytes);
    Pad();
}

/// Asks for one byte more than the file holds, so that the end is met without growing.
bool FileText::Read(const std::string& path) {
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat info = {};
    if (file.Get() < 0 || fstat(file.Get(), &info) != 0)
        return false;
    FileText text;
    size_t capacity = std::max(static_cast<size_t>(info.st_size) + 1, S_ISREG(info.st_mode) ? 1 : k_FirstSize);
    text.Resize(capacity);
    for (;;) {
        const ssize_t got = ReadSome(file.Get(), text.m_Bytes + text.m_Size, capacity - text.m_Size);
        if (got < 0)
            return false;
        if (got == 0)
            break;
        text.m_Size += static_cast<size_t>(got);
        if (text.m_Size == capacity)
            text.Resize(capacity = std::max(capacity * 2, k_FirstSize));
    }
    text.Pad();
    *this = std::move(text);
    return true;
}

FileText::~FileText() { base::FreeLarge(m_Bytes, m_Capacity); }

void FileText::Swap(FileText& other) noexcept {
    std::swap(m_Bytes, other.m_Bytes);
    std::swap(m_Size, other.m_Size);
    std::swap(m_Capacity, other.m_Capacity);
}

void FileText::Resize(size_t capacity) {
    m_Bytes = static_cast<char*>(base::ResizeLarge(m_Bytes, m_Capacity, capacity + k_Padding));
    m_Capacity = capacity + k_Padding;
}

void FileText::Pad() { std::memset(m_Bytes + m_Size, '\n', k_Padding); }

} // namespace io
