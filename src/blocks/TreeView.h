#ifndef QRL_BLOCKS_TREEVIEW_H
#define QRL_BLOCKS_TREEVIEW_H

#include "blocks/NodeList.h"

#include <string_view>

namespace io {

/// One func or block of a tree, with all that it holds: either the root of a tree of its own, or a place within a
/// bigger one that it shares. A copy costs one increment of a count. The first change of a view within a bigger tree
/// takes a copy of its part, which the bigger tree doesn't notice.
class TreeView {
public:
    TreeView(NodeKind kind, std::string_view name) : m_Nodes(kind, name) {}
    /// The node at `place`, which stands in the tree of `within`.
    TreeView(const TreeView& within, const Node* place)
        : m_Nodes(within.m_Nodes), m_Root(static_cast<size_t>(place - m_Nodes.GetRoot())) {}

    /// Becomes the view of `place` in the tree of `within`.
    void MoveTo(const TreeView& within, const Node* place) {
        if (!m_Nodes.SharesWith(within.m_Nodes))
            m_Nodes = within.m_Nodes;
        m_Root = static_cast<size_t>(place - m_Nodes.GetRoot());
    }

    const Node* GetRoot() const { return m_Nodes.GetRoot() + m_Root; }
    const Node* GetBegin() const { return GetRoot()->GetFirstChild(); }
    const Node* GetEnd() const { return m_Root == 0 ? m_Nodes.GetEnd() : GetRoot()->GetNext(); }
    std::string_view GetName() const { return GetRoot()->GetText(); }
    int GetCount() const;

    void SetName(std::string_view name);
    /// Drops all but the name. A tree that nobody shares keeps its memory for what comes next.
    void Clear();
    /// The nodes for a change: a tree of its own, of which this is the root.
    NodeList& Own();
    size_t GetMemory() const { return m_Nodes.GetMemory(); }

private:
    NodeList m_Nodes;
    size_t m_Root = 0;
};

/// Walks the arguments of a func or the items of a block. Valid until the tree changes.
class NodeIterator {
public:
    explicit NodeIterator(const Node* at) : m_At(at) {}
    const Node& operator*() const { return *m_At; }
    const Node* operator->() const { return m_At; }
    NodeIterator& operator++() {
        m_At = m_At->GetNext();
        return *this;
    }
    bool operator==(const NodeIterator& other) const = default;

private:
    const Node* m_At;
};

} // namespace io

#endif
