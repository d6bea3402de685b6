#include "blocks/CBlock_deferred.h"

#include "blocks/NeutralWriter.h"

#include <utility>

namespace io {

CBlock_deferred::CBlock_deferred(std::string_view name, size_t count, Maker maker)
    : m_Name(CToken::OfText(name)), m_Count(count), m_Maker(std::move(maker)) {}

void CBlock_deferred::write(CAbstract_ostream& stream) const { NeutralWriter(stream).Write(*this); }

size_t CBlock_deferred::SizeOf(bool /*withTree*/) const { return sizeof *this; }

} // namespace io
