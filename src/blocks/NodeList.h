#ifndef QRL_BLOCKS_NODELIST_H
#define QRL_BLOCKS_NODELIST_H

#include "blocks/Node.h"

#include <new>
#include <string_view>
#include <type_traits>
#include <utility>

namespace io {

class CStreamio_object;
class CToken;

/// The nodes of one tree, root first, shared between handles.
///
/// A copy of a list shares the nodes and costs one increment of a count; a change through one handle leaves what the
/// others see as it was. The nodes stay where they are until the next change. Objects that stand by reference in the
/// tree are counted, stay shared between copies of the tree, and are freed without recursion, however deep reference
/// follows on reference. A tree is limited to 2^32 - 1 nodes; `std::length_error` beyond that. Not for use by several
/// threads.
class NodeList {
public:
    /// A tree of a root without children. `rootKind` is a func or a block.
    NodeList(NodeKind rootKind, std::string_view name);
    NodeList(const NodeList& other) noexcept : m_Storage(other.m_Storage) { ++m_Storage->m_Users; }
    NodeList& operator=(NodeList other) noexcept {
        std::swap(m_Storage, other.m_Storage);
        return *this;
    }
    ~NodeList() {
        if (--m_Storage->m_Users == 0)
            Free(m_Storage);
    }

    /// The tree from `root` down, as a tree of its own. `end` is the node behind it.
    static NodeList CopyOf(const Node* root, const Node* end);

    bool SharesWith(const NodeList& other) const { return m_Storage == other.m_Storage; }

    const Node* GetRoot() const { return m_Storage->GetNodes(); }
    const Node* GetEnd() const { return GetRoot() + m_Storage->m_Size; }
    /// Bytes of memory that the tree takes, without what stands in it by reference.
    size_t GetMemory() const { return GetBytes(m_Storage->m_Capacity); }

    /// Appends one value to the innermost open node. Each is made where it stands: copied as a whole right after it was
    /// written piece by piece, it would keep the processor waiting.
    void Append(const Node& node) { *MakeRoom(1) = node; }
    void AppendValue(bool value) { NewNode(MakeRoom(1), value); }
    void AppendValue(int value) { NewNode(MakeRoom(1), value); }
    void AppendValue(double value) { NewNode(MakeRoom(1), value); }
    void AppendValue(const Keyword& keyword) { NewNode(MakeRoom(1), keyword); }
    /// Appends values and keywords, of which each is one node.
    template <class... Values>
    void AppendRow(Values&&... values) {
        static_assert(((!std::is_same_v<Values, Keyword> && !std::is_same_v<Values, const Keyword>)&&...),
            "the tree would outlive a keyword that is made for the call");
        Node* at = MakeRoom(sizeof...(values));
        (NewNode(at++, std::forward<Values>(values)), ...);
    }
    /// Appends a word or text, which must not lie in this list. Here, so that a text that is known when this is
    /// compiled costs no call.
    void AppendText(NodeKind kind, std::string_view text) {
        if (text.size() <= Node::k_ShortText)
            new (MakeRoom(1)) Node(kind, text, Node::k_ShortText);
        else
            AppendLongText(kind, text);
    }
    /// Appends a word that lies in memory which can be read for `Node::k_ShortText` bytes, however short the word is.
    void AppendPaddedWord(std::string_view word) {
        if (word.size() <= Node::k_ShortText)
            new (MakeRoom(1)) Node(NodeKind::k_Word, word.data(), word.size());
        else
            AppendLongText(NodeKind::k_Word, word);
    }
    void AppendToken(const CToken& token);
    /// Appends a copy of the tree from `root` to `end`, which must not lie in this list.
    void AppendTree(const Node* root, const Node* end);
    /// Appends an object by reference and counts it. Null leaves a node that stands for nothing.
    void AppendReference(CStreamio_object* target);

    /// Appends a func, block or named value without children, whose name must not lie in this list; what is appended
    /// next goes into it, until `Close`.
    void Open(NodeKind kind, std::string_view name) {
        if (name.size() <= Node::k_ShortName)
            Open(new (MakeRoom(1)) Node(kind, name, Node::k_ShortName));
        else
            OpenLong(kind, name);
    }
    /// The same for a func whose name lies in memory that can be read for `Node::k_ShortText` bytes.
    void OpenPadded(std::string_view name) {
        if (name.size() <= Node::k_ShortName)
            Open(new (MakeRoom(1)) Node(NodeKind::k_Func, name.data(), name.size()));
        else
            OpenLong(NodeKind::k_Func, name);
    }
    /// Closes the innermost open node. Each `Open` needs its `Close` before the tree is read.
    void Close() {
        const uint32_t index = m_Storage->m_InnermostOpen;
        Node& node = m_Storage->GetNodes()[index];
        m_Storage->m_InnermostOpen = node.GetExtentField();
        node.SetExtent(static_cast<uint32_t>(m_Storage->m_Size - index));
    }
    /// True while a node below the root is open.
    bool HasOpen() const { return m_Storage->m_InnermostOpen != 0; }
    /// The node that is appended to: the innermost open one, else the root.
    const Node& GetInnermost() const { return GetRoot()[m_Storage->m_InnermostOpen]; }
    bool IsInnermostEmpty() const { return GetInnermost().GetFirstChild() == GetEnd(); }
    /// Tells that the tree is made from `size` bytes of text, in which every node takes at least two, a parenthesis or
    /// a blank among them. Memory for a large tree is then set aside at once; what isn't used of it costs nothing, and
    /// `ShrinkToFit` gives it back.
    void ExpectText(size_t size);
    /// Gives back the memory that was set aside for growth.
    void ShrinkToFit();
    /// Drops all but the root, and keeps the memory. False, with nothing done, where others share the tree.
    bool TryClear();

private:
    /// The nodes and their administration in one piece of memory.
    struct Storage {
        uint32_t m_Users = 1;
        uint32_t m_InnermostOpen = 0; ///< index of the node that is appended to
        size_t m_Size = 0;
        size_t m_Capacity = 0;
        size_t m_Expected = 0;           ///< nodes that a large tree is likely to have
        size_t m_References = 0;         ///< how many nodes are references
        Storage* m_NextToFree = nullptr; ///< link of the list of storages that wait to be freed

        Node* GetNodes() { return reinterpret_cast<Node*>(this + 1); }
        Node* GetEnd() { return GetNodes() + m_Size; }
    };
    static_assert(sizeof(Storage) % alignof(Node) == 0);

    static size_t GetBytes(size_t capacity) { return sizeof(Storage) + capacity * sizeof(Node); }
    static Storage* Allocate(size_t capacity);
    static void Free(Storage* storage);
    static void DropReferences(Storage* storage);

    /// Room for `count` nodes at the end, which count as part of the tree from now on. For this handle alone.
    Node* MakeRoom(size_t count) {
        if (m_Storage->m_Users != 1 || m_Storage->m_Capacity - m_Storage->m_Size < count) [[unlikely]]
            Reserve(count);
        Node* room = m_Storage->GetEnd();
        m_Storage->m_Size += count;
        return room;
    }
    /// While a node is open, its extent holds the index of the one that was innermost before it: no stack is needed,
    /// whatever the depth.
    void Open(Node* last) {
        last->SetExtent(m_Storage->m_InnermostOpen);
        m_Storage->m_InnermostOpen = static_cast<uint32_t>(last - m_Storage->GetNodes());
    }
    static void NewNode(Node* at, bool value) { new (at) Node(NodeKind::k_Bool, value); }
    static void NewNode(Node* at, int value) { new (at) Node(NodeKind::k_Int, value); }
    static void NewNode(Node* at, double value) { new (at) Node(NodeKind::k_Double, value); }
    static void NewNode(Node* at, const Keyword& keyword) { new (at) Node(keyword); }
    void OpenLong(NodeKind kind, std::string_view name);
    void AppendLongText(NodeKind kind, std::string_view text);
    void Reserve(size_t count);
    void Resize(size_t capacity);
    bool GrowAsExpected(size_t capacity);
    void CountReferences(const Node* first, const Node* end);

    Storage* m_Storage;
};

} // namespace io

#endif
