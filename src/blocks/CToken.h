#ifndef QRL_BLOCKS_CTOKEN_H
#define QRL_BLOCKS_CTOKEN_H

#include "blocks/AString.h"
#include "blocks/Node.h"
#include "blocks/NumberText.h"

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace io {

/// One token: a word or number of the input with its source text, a quoted string, or a value of the output. The
/// default is the empty token. A plain value; the token owns its text.
class CToken {
public:
    /// The shared text of every empty token.
    static const char mACharEmptyString[1];

    CToken() = default;
    /// A token as it stands bare in a file: a number where the text reads as one, else a word.
    static CToken OfWord(std::string_view text) { return {NodeKind::k_Word, text}; }
    /// A quoted string, given its inner text.
    static CToken OfText(std::string_view text) { return {NodeKind::k_Text, text}; }
    /// The value of a node that has neither children nor a target.
    static CToken OfNode(const Node& node);

    NodeKind GetKind() const { return m_Node.GetKind(); }
    bool IsEmpty() const { return GetKind() == NodeKind::k_Empty; }
    bool IsNumber() const;

    /// The token as text: the source text of a number or word, the inner text of a quoted string, the text form of a
    /// value of the output. Empty for the empty token.
    AString GetAString() const;
    std::string GetNarrow() const;

    /// The node that stands for a token with a short text or a value.
    const Node& GetNode() const { return m_Node; }
    /// The text of a word or quoted string.
    std::string_view GetText() const;

    /// Same kind, same text or value.
    bool operator==(const CToken& other) const;

private:
    CToken(NodeKind kind, std::string_view text);

    Node m_Node;
    std::string m_LongText; ///< used when the text doesn't fit the node
};

/// The reads of a value by type. Each returns false, with `value` unchanged, where the value is of another kind or
/// doesn't fit. A whole number can be read as any type of number that holds it, any other number as a float or double;
/// a word that is no number, and a quoted string, as a text.
class NodeValue {
public:
    NodeValue(const Node& node, std::string_view text) : m_Node(node), m_Text(text) {}
    /// `node` stands in a tree.
    explicit NodeValue(const Node& node) : NodeValue(node, HasText(node) ? node.GetText() : std::string_view()) {}

    std::string_view GetText() const { return m_Text; }
    bool Query(bool& value) const;
    /// Most numbers of a board are digits alone, and there are millions of them: those cost no call.
    bool Query(double& value) const {
        const bool isWord = m_Node.GetKind() == NodeKind::k_Word;
        const std::optional<int64_t> digits = isWord ? ParseDigits_G(m_Text) : std::nullopt;
        if (!digits)
            return QueryReal(value);
        value = static_cast<double>(*digits);
        return true;
    }
    bool Query(float& value) const;
    bool Query(std::string_view& value) const;

    template <std::integral Integer>
    bool Query(Integer& value) const {
        int64_t whole = 0;
        if (!QueryWhole(whole) || !std::in_range<Integer>(whole))
            return false;
        value = static_cast<Integer>(whole);
        return true;
    }

    static bool HasText(const Node& node) {
        return node.GetKind() == NodeKind::k_Word || node.GetKind() == NodeKind::k_Text;
    }

private:
    bool QueryReal(double& value) const;
    bool QueryWhole(int64_t& value) const;

    const Node& m_Node;
    std::string_view m_Text;
};

} // namespace io

#endif
