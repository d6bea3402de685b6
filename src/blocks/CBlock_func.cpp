#include "blocks/CBlock_func.h"

#include "blocks/CAbstract_istream.h"
#include "blocks/CBlock_value.h"
#include "blocks/FuncRange.h"
#include "blocks/NeutralReader.h"
#include "blocks/NeutralWriter.h"

namespace io {

CBlock_func::CBlock_func(const CBlock_func& other)
    : CBlock_func_arg(other), m_Tree(other.m_Tree), m_Read(other.m_Read), m_IsOk(other.m_IsOk) {}

/// The tree comes last, and from a copy: the tree that goes can hold the last reference to `other`.
CBlock_func& CBlock_func::operator=(const CBlock_func& other) {
    m_Read = other.m_Read;
    m_IsOk = other.m_IsOk;
    m_NameToken.reset();
    m_Tree = TreeView(other.m_Tree);
    return *this;
}

CBlock_ptr<CBlock_func_arg> CBlock_func::Item(NodeIterator at) const {
    if (at->GetKind() == NodeKind::k_Reference)
        return CBlock_ptr<CBlock_func_arg>(dynamic_cast<CBlock_func*>(at->GetReference()));
    if (at->GetKind() == NodeKind::k_Func)
        return CBlock_ptr<CBlock_func_arg>(new CBlock_func(TreeView(m_Tree, &*at)));
    return CBlock_ptr<CBlock_func_arg>(new CBlock_value(CToken::OfNode(*at)));
}

FuncRange CBlock_func::Funcs() const { return FuncRange(m_Tree); }

template <class T>
CBlock_func& CBlock_func::ReadValue(T& value) {
    const Node* at = m_Tree.GetBegin() + m_Read;
    m_IsOk = at != m_Tree.GetEnd() && NodeValue(*at).Query(value);
    if (m_IsOk)
        m_Read += at->GetExtent();
    return *this;
}

CBlock_func& CBlock_func::operator>>(int& value) { return ReadValue(value); }

CBlock_func& CBlock_func::operator>>(double& value) { return ReadValue(value); }

CBlock_func& CBlock_func::operator>>(AString& value) {
    std::string_view text;
    ReadValue(text);
    if (m_IsOk)
        value = AString(text);
    return *this;
}

const CBlock_func& CBlock_func::operator>>(CBlock_func& query) const {
    const std::optional<TreeView> found = FindFunc(query.m_Tree.GetName());
    m_IsOk = found.has_value();
    if (found)
        query = CBlock_func(*found);
    return *this;
}

std::optional<TreeView> CBlock_func::FindFunc(std::string_view name) const {
    const Node* end = m_Tree.GetEnd();
    for (const Node* node = m_Tree.GetBegin(); node != end; node = node->GetNext()) {
        if (node->GetKind() == NodeKind::k_Func && EqualsNoCase_G(node->GetText(), name))
            return TreeView(m_Tree, node);
        const CBlock_func* func = FuncOfReference(*node);
        if (func != nullptr && func->NameIs(name))
            return func->m_Tree;
    }
    return std::nullopt;
}

const CBlock_func* CBlock_func::ToFunc(const CStreamio_object* target) {
    return dynamic_cast<const CBlock_func*>(target);
}

bool CBlock_func::Enter(const TreeView& parent, const Node& node) {
    const CBlock_func* referenced = FuncOfReference(node);
    if (node.GetKind() != NodeKind::k_Func && referenced == nullptr)
        return false;
    if (referenced != nullptr)
        m_Tree = referenced->m_Tree;
    else
        m_Tree.MoveTo(parent, &node);
    m_Read = 0;
    m_IsOk = true;
    m_NameToken.reset();
    return true;
}

CBlock_func& CBlock_func::operator<<(bool value) {
    Change().AppendValue(value);
    return *this;
}

CBlock_func& CBlock_func::operator<<(int value) {
    Change().AppendValue(value);
    return *this;
}

CBlock_func& CBlock_func::operator<<(double value) {
    Change().AppendValue(value);
    return *this;
}

CBlock_func& CBlock_func::operator<<(const AString& text) { return *this << text.GetNarrow(); }

CBlock_func& CBlock_func::operator<<(std::string_view text) {
    Change().AppendText(NodeKind::k_Text, text);
    return *this;
}

CBlock_func& CBlock_func::operator<<(const CToken& token) {
    Change().AppendToken(token);
    return *this;
}

/// The copy keeps the nodes of `func` in place, also when it is this func.
CBlock_func& CBlock_func::operator<<(const CBlock_func& func) {
    const TreeView tree = func.m_Tree;
    Change().AppendTree(tree.GetRoot(), tree.GetEnd());
    return *this;
}

CBlock_func& CBlock_func::operator<<(const CBlock_ptr<CBlock_func>& func) {
    CBlock_ptr<CBlock_func> shared = func;
    Change().AppendReference(shared.Item());
    return *this;
}

/// The read position counts from the first argument, so it stays good in a tree of its own.
NodeList& CBlock_func::Change() { return m_Tree.Own(); }

bool CBlock_func::read(CAbstract_istream& stream) {
    NeutralReader reader(stream.GetRest());
    const std::optional<TreeView> tree = reader.ReadTree();
    if (!tree || tree->GetRoot()->GetKind() != NodeKind::k_Func)
        return false;
    stream.Advance(reader.GetConsumed());
    *this = CBlock_func(*tree);
    return true;
}

void CBlock_func::write(CAbstract_ostream& stream) const { NeutralWriter(stream).Write(m_Tree); }

void CBlock_func::Name(const AString& name) {
    m_Tree.SetName(name.GetNarrow());
    m_NameToken.reset();
}

const CToken& CBlock_func::NameToken() const {
    if (m_NameToken == nullptr)
        m_NameToken = std::make_unique<CToken>(CToken::OfText(m_Tree.GetName()));
    return *m_NameToken;
}

void CBlock_func::Clear() {
    m_Tree.Clear();
    m_Read = 0;
}

size_t CBlock_func::SizeOf(bool withTree) const { return sizeof *this + (withTree ? m_Tree.GetMemory() : 0); }

} // namespace io
