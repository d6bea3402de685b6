#ifndef QRL_BLOCKS_CBLOCK_NAMED_VALUE_H
#define QRL_BLOCKS_CBLOCK_NAMED_VALUE_H

#include "blocks/CBlock_value.h"

namespace io {

/// A name with one value. It stands in a block only.
class CBlock_named_value : public CBlock_item {
public:
    CBlock_named_value(const AString& name, CBlock_value value)
        : m_Name(CToken::OfText(name.GetNarrow())), m_Value(std::move(value)) {}
    CBlock_named_value(const AString& name, const AString& text) : CBlock_named_value(name, CBlock_value(text)) {}

    const CBlock_value& Value() const { return m_Value; }

    bool read(CAbstract_istream& stream) override;
    void write(CAbstract_ostream& stream) const override;
    AString Name() const override { return m_Name.GetAString(); }
    void Name(const AString& name) override { m_Name = CToken::OfText(name.GetNarrow()); }
    const CToken& NameToken() const override { return m_Name; }
    int Size() const override { return m_Value.Size(); }
    void Clear() override { m_Value.Clear(); }
    bool IsNamedValue() const override { return true; }
    size_t SizeOf(bool withTree) const override;

private:
    CToken m_Name;
    CBlock_value m_Value;
};

} // namespace io

#endif
