#ifndef QRL_BLOCKS_FILETEXT_H
#define QRL_BLOCKS_FILETEXT_H

#include <cstddef>
#include <string>
#include <string_view>

namespace io {

/// The whole text of a file in one piece of memory, with a few bytes behind its end that can be read too. Move only.
class FileText {
public:
    /// How many bytes behind the end can be read. The first one is a line end, so that a scan over a word stops there.
    static constexpr size_t k_Padding = 16;

    FileText() = default;
    /// A copy of `text`.
    explicit FileText(std::string_view text);
    FileText(FileText&& other) noexcept { Swap(other); }
    FileText& operator=(FileText&& other) noexcept {
        Swap(other);
        return *this;
    }
    FileText(const FileText&) = delete;
    FileText& operator=(const FileText&) = delete;
    ~FileText();

    /// Reads a file, a pipe or a device to its end. False, with nothing changed, when it can't be opened or read.
    bool Read(const std::string& path);

    const char* GetBegin() const { return m_Bytes; }
    const char* GetEnd() const { return m_Bytes + m_Size; }

private:
    void Swap(FileText& other) noexcept;
    void Resize(size_t capacity);
    /// Fills the padding behind the text.
    void Pad();

    char* m_Bytes = nullptr;
    size_t m_Size = 0;
    size_t m_Capacity = 0; ///< with the padding
};

} // namespace io

#endif
