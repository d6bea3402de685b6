#include "blocks/CBlock_named_value.h"

#include "blocks/CAbstract_istream.h"
#include "blocks/NeutralReader.h"
#include "blocks/NeutralWriter.h"

namespace io {

bool CBlock_named_value::read(CAbstract_istream& stream) {
    NeutralReader reader(stream.GetRest());
    const std::optional<NeutralReader::NamedValue> read = reader.ReadNamedValue();
    if (!read)
        return false;
    stream.Advance(reader.GetConsumed());
    m_Name = CToken::OfText(read->m_Name);
    m_Value = CBlock_value(read->m_Value);
    return true;
}

void CBlock_named_value::write(CAbstract_ostream& stream) const {
    NeutralWriter(stream).WriteNamedValue(m_Name.GetText(), m_Value.GetToken());
}

size_t CBlock_named_value::SizeOf(bool /*withTree*/) const { return sizeof *this; }

} // namespace io
