#ifndef QRL_BLOCKS_NODE_H
#define QRL_BLOCKS_NODE_H

#include "blocks/Keyword.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

namespace io {

class CStreamio_object;

enum class NodeKind : uint8_t {
    k_Empty,      ///< no token at all
    k_Word,       ///< a bare token of the input: a word or a number, told apart when it is asked for
    k_Text,       ///< a quoted string of the input, or a text of the output
    k_Int,        ///< a 32-bit number of the output
    k_Double,     ///< a floating point number of the output
    k_Bool,       ///< a truth value of the output
    k_Func,       ///< a name and the nodes of its arguments behind it
    k_Block,      ///< a name and the nodes of its items behind it
    k_NamedValue, ///< a name and the one node of its value behind it
    k_Reference,  ///< a func or block kept elsewhere and counted; or nothing, when it is null
};

/// One record of a tree that lies flat in memory.
///
/// A func, block or named value is followed at once by the nodes of what it holds, and knows how many they are (its
/// extent, itself included); so the next sibling is one addition away, a copy of a subtree is a copy of memory, and
/// nothing that walks, copies or frees a tree needs the call stack. Short texts lie in the node itself, long ones in
/// the nodes behind it, which then count as part of it, and keywords in the program. A tree so needs nothing of the
/// file that it came from.
///
/// Layout of the 16 bytes: kind, size of the text, then 14 bytes of text, or 10 bytes of name and the extent, or 6
/// unused bytes and the value or the keyword's address.
class Node {
public:
    static constexpr size_t k_ShortText = 14;
    static constexpr size_t k_ShortName = 10;

    Node() = default;

    NodeKind GetKind() const { return m_Kind; }
    bool HasChildren() const { return m_Kind >= NodeKind::k_Func && m_Kind <= NodeKind::k_NamedValue; }

    /// The text of a word or text, the name of a func, block or named value. Valid as long as the node stays where it
    /// is.
    std::string_view GetText() const {
        if (HasShortText())
            return {m_Payload, m_TextSize};
        if (const Keyword* keyword = GetKeyword())
            return keyword->GetText();
        return {reinterpret_cast<const char*>(this + 1) + sizeof(uint64_t), GetLongSize()};
    }
    /// What the text is, when it is a keyword; else null.
    const Keyword* GetKeyword() const {
        return m_TextSize == k_IsKeyword ? static_cast<const Keyword*>(Load<const void*>(k_ValueAt)) : nullptr;
    }

    int GetInt() const { return Load<int32_t>(k_ValueAt); }
    double GetDouble() const { return Load<double>(k_ValueAt); }
    bool GetBool() const { return Load<bool>(k_ValueAt); }
    CStreamio_object* GetReference() const { return static_cast<CStreamio_object*>(Load<void*>(k_ValueAt)); }

    /// How many nodes the text takes, this one included.
    size_t GetOwnNodes() const { return 1 + (m_TextSize == k_LongText ? NodesForLongText(GetLongSize()) : 0); }
    /// How many nodes lead to the next sibling.
    size_t GetExtent() const { return HasChildren() ? GetExtentField() : GetOwnNodes(); }
    const Node* GetNext() const { return this + GetExtent(); }
    /// The first node that a func, block or named value holds; equal to `GetNext` when it holds none.
    const Node* GetFirstChild() const { return this + GetOwnNodes(); }

    uint32_t GetExtentField() const { return Load<uint32_t>(k_ExtentAt); }
    void SetExtent(uint32_t extent) { Store(k_ExtentAt, extent); }
    /// Whether the text lies in the node itself.
    bool HasShortText() const { return m_TextSize <= k_ShortText; }

    /// How many further nodes a text of `size` bytes needs when it is too long for its node.
    static constexpr size_t NodesForLongText(size_t size) {
        return (sizeof(uint64_t) + size + sizeof(Node) - 1) / sizeof(Node);
    }

    /// A value of a kind that has one: a number, a truth value, or what a reference leads to.
    template <class Value>
    Node(NodeKind kind, Value value) : m_Kind(kind) {
        static_assert(sizeof(Value) <= sizeof(void*) && std::is_trivially_copyable_v<Value>);
        Store(k_ValueAt, value);
    }

    /// A text that is a keyword.
    explicit Node(const Keyword& keyword) : m_Kind(NodeKind::k_Text), m_TextSize(k_IsKeyword) {
        Store(k_ValueAt, static_cast<const void*>(&keyword));
    }

    /// A node of `kind` whose text is `text` when that is at most `room` bytes long; otherwise its text is to be put
    /// behind it with `PutLongText`.
    Node(NodeKind kind, std::string_view text, size_t room) : m_Kind(kind) {
        if (text.size() <= room) {
            m_TextSize = static_cast<uint8_t>(text.size());
            std::memcpy(m_Payload, text.data(), text.size());
        } else {
            m_TextSize = k_LongText;
        }
    }

    /// The same for a text of `size` bytes, short enough for its node, that lies in memory which can be read for
    /// `k_ShortText` bytes: the copy of a fixed size is what makes reading a file fast.
    Node(NodeKind kind, const char* paddedText, size_t size) : m_Kind(kind), m_TextSize(static_cast<uint8_t>(size)) {
        std::memcpy(m_Payload, paddedText, k_ShortText);
    }

    /// Puts `text` and its size into the nodes from `to` on.
    static void PutLongText(Node* to, std::string_view text) {
        const uint64_t size = text.size();
        char* bytes = reinterpret_cast<char*>(to);
        std::memcpy(bytes, &size, sizeof size);
        std::memcpy(bytes + sizeof size, text.data(), text.size());
    }

private:
    static constexpr uint8_t k_LongText = 0xFF;
    static constexpr uint8_t k_IsKeyword = 0xFE;
    static constexpr size_t k_ValueAt = 6;
    static constexpr size_t k_ExtentAt = 10;

    template <class T>
    T Load(size_t at) const {
        T value;
        std::memcpy(&value, m_Payload + at, sizeof value);
        return value;
    }

    template <class T>
    void Store(size_t at, T value) {
        std::memcpy(m_Payload + at, &value, sizeof value);
    }

    uint64_t GetLongSize() const {
        uint64_t size = 0;
        std::memcpy(&size, this + 1, sizeof size);
        return size;
    }

    NodeKind m_Kind = NodeKind::k_Empty;
    uint8_t m_TextSize = 0;
    char m_Payload[k_ShortText] = {};
};

static_assert(sizeof(Node) == 16);

} // namespace io

#endif
