#include "blocks/CBlock.h"

#include "blocks/CAbstract_istream.h"
#include "blocks/FuncRange.h"
#include "blocks/NeutralReader.h"
#include "blocks/NeutralWriter.h"

namespace io {

/// The tree is assigned from a copy: the tree that goes can hold the last reference to `other`.
CBlock& CBlock::operator=(const CBlock& other) {
    m_Tree = TreeView(other.m_Tree);
    m_NameToken.reset();
    return *this;
}

CBlock_ptr<CBlock_item> CBlock::Item(NodeIterator at) const {
    switch (at->GetKind()) {
    case NodeKind::k_Reference:
        return CBlock_ptr<CBlock_item>(static_cast<CBlock_item*>(at->GetReference()));
    case NodeKind::k_Block:
        return CBlock_ptr<CBlock_item>(new CBlock(TreeView(m_Tree, &*at)));
    case NodeKind::k_NamedValue:
        return CBlock_ptr<CBlock_item>(
            new CBlock_named_value(AString(at->GetText()), CBlock_value(CToken::OfNode(*at->GetFirstChild()))));
    default:
        return CBlock_ptr<CBlock_item>(new CBlock_func(TreeView(m_Tree, &*at)));
    }
}

FuncRange CBlock::Funcs() const { return FuncRange(m_Tree); }

/// The copy keeps the nodes of `block` in place, also when it is this block.
CBlock& CBlock::operator<<(const CBlock& block) {
    const TreeView tree = block.m_Tree;
    Change().AppendTree(tree.GetRoot(), tree.GetEnd());
    return *this;
}

CBlock& CBlock::operator<<(const CBlock_func& func) {
    Change().AppendTree(func.GetTree().GetRoot(), func.GetTree().GetEnd());
    return *this;
}

CBlock& CBlock::operator<<(const CBlock_named_value& value) {
    NodeList& nodes = Change();
    nodes.Open(NodeKind::k_NamedValue, value.NameToken().GetText());
    nodes.AppendToken(value.Value().GetToken());
    nodes.Close();
    return *this;
}

CBlock& CBlock::operator<<(const CBlockPtr& block) {
    CBlock_ptr<CBlock> shared = block.GetPtr();
    Change().AppendReference(shared.Item());
    return *this;
}

CBlock& CBlock::operator<<(const CBlockDeferredPtr& block) {
    CBlockDeferredPtr shared = block;
    Change().AppendReference(shared.Item());
    return *this;
}

CBlock& CBlock::operator<<(const CBlock_ptr<CBlock_func>& func) {
    CBlock_ptr<CBlock_func> shared = func;
    Change().AppendReference(shared.Item());
    return *this;
}

NodeList& CBlock::Change() { return m_Tree.Own(); }

bool CBlock::read(CAbstract_istream& stream) {
    NeutralReader reader(stream.GetRest());
    const std::optional<TreeView> tree = reader.ReadTree();
    if (!tree || tree->GetRoot()->GetKind() != NodeKind::k_Block)
        return false;
    stream.Advance(reader.GetConsumed());
    *this = CBlock(*tree);
    return true;
}

void CBlock::write(CAbstract_ostream& stream) const { NeutralWriter(stream).Write(m_Tree); }

void CBlock::Name(const AString& name) {
    m_Tree.SetName(name.GetNarrow());
    m_NameToken.reset();
}

const CToken& CBlock::NameToken() const {
    if (m_NameToken == nullptr)
        m_NameToken = std::make_unique<CToken>(CToken::OfText(m_Tree.GetName()));
    return *m_NameToken;
}

void CBlock::Clear() { m_Tree.Clear(); }

size_t CBlock::SizeOf(bool withTree) const { return sizeof *this + (withTree ? m_Tree.GetMemory() : 0); }

} // namespace io
