#include "blocks/CToken.h"

#include "blocks/ValueText.h"

#include <cmath>
#include <limits>

namespace io {

const char CToken::mACharEmptyString[1] = "";

CToken::CToken(NodeKind kind, std::string_view text) : m_Node(kind, text, Node::k_ShortText) {
    if (!m_Node.HasShortText())
        m_LongText = text;
}

CToken CToken::OfNode(const Node& node) {
    if (NodeValue::HasText(node))
        return {node.GetKind(), node.GetText()};
    CToken token;
    token.m_Node = node;
    return token;
}

std::string_view CToken::GetText() const {
    if (!NodeValue::HasText(m_Node))
        return mACharEmptyString;
    return m_Node.HasShortText() ? m_Node.GetText() : m_LongText;
}

bool CToken::IsNumber() const {
    double value = 0.0;
    return NodeValue(m_Node, GetText()).Query(value);
}

std::string CToken::GetNarrow() const {
    return NodeValue::HasText(m_Node) ? std::string(GetText()) : ValueText(m_Node);
}

AString CToken::GetAString() const { return AString(GetNarrow()); }

bool CToken::operator==(const CToken& other) const {
    return GetKind() == other.GetKind() && GetNarrow() == other.GetNarrow();
}

bool NodeValue::Query(bool& value) const {
    if (m_Node.GetKind() != NodeKind::k_Bool)
        return false;
    value = m_Node.GetBool();
    return true;
}

bool NodeValue::QueryReal(double& value) const {
    switch (m_Node.GetKind()) {
    case NodeKind::k_Double:
        value = m_Node.GetDouble();
        return true;
    case NodeKind::k_Int:
        value = m_Node.GetInt();
        return true;
    case NodeKind::k_Word: {
        const NumberText number = ParseNumber_G(m_Text);
        if (number.m_Kind == NumberText::Kind::k_None)
            return false;
        value = number.m_Real;
        return true;
    }
    default:
        return false;
    }
}

bool NodeValue::Query(float& value) const {
    double exact = 0.0;
    if (!Query(exact) || (std::isfinite(exact) && std::abs(exact) > std::numeric_limits<float>::max()))
        return false;
    value = static_cast<float>(exact);
    return true;
}

bool NodeValue::Query(std::string_view& value) const {
    const bool isWord = m_Node.GetKind() == NodeKind::k_Word;
    if (m_Node.GetKind() != NodeKind::k_Text && (!isWord || ParseNumber_G(m_Text).m_Kind != NumberText::Kind::k_None))
        return false;
    value = m_Text;
    return true;
}

bool NodeValue::QueryWhole(int64_t& value) const {
    if (m_Node.GetKind() == NodeKind::k_Int) {
        value = m_Node.GetInt();
        return true;
    }
    if (m_Node.GetKind() != NodeKind::k_Word)
        return false;
    const NumberText number = ParseNumber_G(m_Text);
    if (number.m_Kind != NumberText::Kind::k_Whole)
        return false;
    value = number.m_Whole;
    return true;
}

} // namespace io
