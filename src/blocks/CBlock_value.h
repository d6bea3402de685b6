#ifndef QRL_BLOCKS_CBLOCK_VALUE_H
#define QRL_BLOCKS_CBLOCK_VALUE_H

#include "blocks/CBlock_item.h"

namespace io {

/// One value, held as a token.
class CBlock_value : public CBlock_func_arg {
public:
    CBlock_value() = default;
    explicit CBlock_value(const AString& text) : m_Token(CToken::OfText(text.GetNarrow())) {}
    explicit CBlock_value(CToken token) : m_Token(std::move(token)) {}

    const CToken& GetToken() const { return m_Token; }
    /// Same kind, same text or value.
    bool operator==(const CBlock_value& other) const { return m_Token == other.m_Token; }

    bool read(CAbstract_istream& stream) override;
    void write(CAbstract_ostream& stream) const override;
    AString Name() const override { return {}; }
    void Name(const AString& /*name*/) override {}
    const CToken& NameToken() const override;
    bool IsNamed() const override { return false; }
    bool Empty() const override { return m_Token.IsEmpty(); }
    int Size() const override { return Empty() ? 0 : 1; }
    void Clear() override { m_Token = CToken(); }
    bool IsValue() const override { return true; }
    size_t SizeOf(bool withTree) const override;
    bool Query(wchar_t* value) const override;
    bool Query(bool& value) const override { return QueryAs(value); }
    bool Query(AString& value) const override;
    bool Query(unsigned long long& value) const override { return QueryAs(value); }
    bool Query(long long& value) const override { return QueryAs(value); }
    bool Query(unsigned long& value) const override { return QueryAs(value); }
    bool Query(unsigned int& value) const override { return QueryAs(value); }
    bool Query(unsigned short& value) const override { return QueryAs(value); }
    bool Query(long& value) const override { return QueryAs(value); }
    bool Query(int& value) const override { return QueryAs(value); }
    bool Query(short& value) const override { return QueryAs(value); }
    bool Query(float& value) const override { return QueryAs(value); }
    bool Query(double& value) const override { return QueryAs(value); }

private:
    template <class T>
    bool QueryAs(T& value) const {
        return NodeValue(m_Token.GetNode(), m_Token.GetText()).Query(value);
    }

    CToken m_Token;
};

} // namespace io

#endif
