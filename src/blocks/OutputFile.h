#ifndef QRL_BLOCKS_OUTPUTFILE_H
#define QRL_BLOCKS_OUTPUTFILE_H

#include <string>
#include <string_view>
#include <utility>

namespace io {

/// A file that is replaced as a whole: what is written goes to a temporary file in the same folder, which takes the
/// name of the output in `Commit`. A reader of the output sees the old file or the whole new one, never a part.
///
/// Where the output exists and is no regular file (a pipe, a device) it is written straight to. Where it is a symbolic
/// link, the link stays and what it points at is replaced. The new file has the permissions of the old one, or those
/// that the umask gives. The first failure removes the temporary file, leaves an old output as it was, and prints one
/// line with the output's name and the system's reason on standard error; all that follows is then ignored.
class OutputFile {
public:
    /// Remembers the name. No file is touched before the first `Write`, so that a run that ends before it leaves
    /// nothing.
    explicit OutputFile(std::string name) : m_Name(std::move(name)) {}
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    /// Without a `Commit` removes the temporary file.
    ~OutputFile() { Discard(); }

    void Write(std::string_view bytes);
    /// Puts the new file in the place of the output.
    void Commit();
    bool HasFailed() const { return m_State == State::k_Failed; }

    /// Removes the temporary files of all outputs that are being written. Asks for no memory: it is for a run that has
    /// none left and ends where it stands. The outputs must not be used any more.
    static void DiscardAll() noexcept;

private:
    enum class State { k_Untouched, k_Open, k_Done, k_Failed };

    bool Open();
    void OpenTemporary();
    void ForgetTemporary();
    void Fail(int reason);
    void Discard();

    std::string m_Name;
    std::string m_Target;    ///< the file behind all links
    std::string m_Temporary; ///< empty when the output is written straight to
    OutputFile* m_NextTemporary = nullptr;
    int m_Descriptor = -1;
    State m_State = State::k_Untouched;
};

} // namespace io

#endif
