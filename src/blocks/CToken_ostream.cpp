#include "blocks/CToken_ostream.h"

#include "lib/utils/Assert.h"

namespace io {

CToken_ostream::CToken_ostream(const LongFileName& fileName, int flags) : m_File(fileName.FilePath().QRL_ANSI()) {
    QRL_ASSERT("CToken_ostream", "flags == k_Text", flags == k_Text);
}

} // namespace io
