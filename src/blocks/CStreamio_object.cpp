#include "blocks/CStreamio_object.h"

#include "blocks/TextStreams.h"

#include <algorithm>

namespace io {

std::string CStreamio_object::BinaryPack() const {
    TextOstream stream;
    write(stream);
    return stream.GetText();
}

/// A line end stands only between lines: in a text it is escaped.
AString CStreamio_object::Pack(int depth, int maxSize) const {
    const std::string indent(static_cast<size_t>(std::max(depth, 0)), '\t');
    std::string indented;
    for (const char c : BinaryPack()) {
        if (indented.empty() || indented.back() == '\n')
            indented += indent;
        indented += c;
    }
    return AString(std::string_view(indented).substr(0, maxSize < 0 ? indented.size() : static_cast<size_t>(maxSize)));
}

bool CStreamio_object::Unpack(const AString& text) {
    const std::string narrow = text.QRL_ANSI();
    TextIstream whole(narrow);
    if (!read(whole))
        return false;
    return whole.GetRest().empty();
}

void CStreamio_object::Release(const CStreamio_object* object) {
    if (object != nullptr && --object->m_References == 0)
        delete object;
}

size_t CStreamio_object::BinarySize(const CAbstract_ostream& /*stream*/) const { return BinaryPack().size(); }

} // namespace io
