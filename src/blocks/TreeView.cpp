#include "blocks/TreeView.h"

namespace io {

int TreeView::GetCount() const {
    int count = 0;
    for (const Node* node = GetBegin(); node != GetEnd(); node = node->GetNext())
        ++count;
    return count;
}

void TreeView::SetName(std::string_view name) {
    TreeView renamed(GetRoot()->GetKind(), name);
    for (const Node* node = GetBegin(); node != GetEnd(); node = node->GetNext())
        renamed.m_Nodes.AppendTree(node, node->GetNext());
    *this = renamed;
}

void TreeView::Clear() {
    if (m_Root != 0 || !m_Nodes.TryClear())
        *this = TreeView(GetRoot()->GetKind(), GetName());
}

NodeList& TreeView::Own() {
    if (m_Root != 0) {
        m_Nodes = NodeList::CopyOf(GetRoot(), GetEnd());
        m_Root = 0;
    }
    return m_Nodes;
}

} // namespace io
