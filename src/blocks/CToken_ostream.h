#ifndef QRL_BLOCKS_CTOKEN_OSTREAM_H
#define QRL_BLOCKS_CTOKEN_OSTREAM_H

#include "blocks/CAbstract_ostream.h"
#include "blocks/CStreamio_object.h"
#include "blocks/LongFileName.h"
#include "blocks/OutputFile.h"

namespace io {

/// Writes objects of the tree to a file in the text form of the neutral file. The file takes its name only in
/// `Close()`; without that, nothing of it stays. A failure prints one line on standard error, and leaves an old file as
/// it was.
class CToken_ostream : public CAbstract_ostream {
public:
    static constexpr int k_Text = 32; ///< flags: the text form, the only one there is

    /// Nothing is opened before the first object is written.
    CToken_ostream(const LongFileName& fileName, int flags);

    CToken_ostream& operator<<(const CStreamio_object& object) {
        object.write(*this);
        return *this;
    }
    void Put(std::string_view text) override { m_File.Write(text); }
    void Close() { m_File.Commit(); }
    bool fail() const { return m_File.HasFailed(); }

private:
    OutputFile m_File;
};

} // namespace io

#endif
