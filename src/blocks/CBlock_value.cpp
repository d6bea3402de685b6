#include "blocks/CBlock_value.h"

#include "blocks/CAbstract_istream.h"
#include "blocks/NeutralReader.h"
#include "blocks/NeutralWriter.h"

namespace io {

bool CBlock_value::read(CAbstract_istream& stream) {
    NeutralReader reader(stream.GetRest());
    const std::optional<CToken> value = reader.ReadValue();
    if (!value)
        return false;
    stream.Advance(reader.GetConsumed());
    m_Token = *value;
    return true;
}

void CBlock_value::write(CAbstract_ostream& stream) const { NeutralWriter(stream).WriteValue(m_Token); }

const CToken& CBlock_value::NameToken() const {
    static const CToken nameless;
    return nameless;
}

size_t CBlock_value::SizeOf(bool /*withTree*/) const { return sizeof *this; }

bool CBlock_value::Query(AString& value) const {
    if (Empty())
        return false;
    value = m_Token.GetAString();
    return true;
}

bool CBlock_value::Query(wchar_t* value) const {
    AString text;
    if (!Query(text))
        return false;
    for (size_t i = 0; i < text.size(); ++i)
        *value++ = text[i];
    *value = L'\0';
    return true;
}

} // namespace io
