#ifndef QRL_BLOCKS_FILETEXT_H
#define QRL_BLOCKS_FILETEXT_H

#include <cstddef>
#include <cstdlib>
#include <memory>
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
    /// Reads a file, a pipe or a device to its end. False, with nothing changed, when it can't be opened or read.
    bool Read(const std::string& path);

    const char* GetBegin() const { return m_Bytes.get(); }
    const char* GetEnd() const { return m_Bytes.get() + m_Size; }

private:
    struct Deleter {
        void operator()(char* bytes) const { std::free(bytes); }
    };

    void Resize(size_t capacity);
    void Pad();

    std::unique_ptr<char, Deleter> m_Bytes;
    size_t m_Size = 0;
};

} // namespace io

#endif
