#include "blocks/NodeList.h"

#include "blocks/CStreamio_object.h"
#include "blocks/CToken.h"
#include "lib/utils/LargeMemory.h"

#include <algorithm>
#include <limits>
#include <new>
#include <stdexcept>

namespace io {

namespace {

constexpr size_t k_FirstCapacity = 8;
constexpr size_t k_MaxNodes = std::numeric_limits<uint32_t>::max();

} // namespace

NodeList::NodeList(NodeKind rootKind, std::string_view name) : m_Storage(Allocate(k_FirstCapacity)) {
    const Node root(rootKind, name, Node::k_ShortName);
    Append(root);
    if (!root.HasShortText())
        Node::PutLongText(MakeRoom(Node::NodesForLongText(name.size())), name);
}

NodeList NodeList::CopyOf(const Node* root, const Node* end) {
    NodeList copy(root->GetKind(), root->GetText());
    const Node* first = root->GetFirstChild();
    const auto count = static_cast<size_t>(end - first);
    if (count != 0)
        std::copy(first, end, copy.MakeRoom(count));
    copy.CountReferences(first, end);
    return copy;
}

void NodeList::AppendLongText(NodeKind kind, std::string_view text) {
    Append(Node(kind, text, Node::k_ShortText));
    Node::PutLongText(MakeRoom(Node::NodesForLongText(text.size())), text);
}

void NodeList::AppendToken(const CToken& token) {
    if (NodeValue::HasText(token.GetNode()))
        AppendText(token.GetKind(), token.GetText());
    else
        Append(token.GetNode());
}

void NodeList::AppendTree(const Node* root, const Node* end) {
    const auto count = static_cast<size_t>(end - root);
    Node* copy = MakeRoom(count);
    std::copy(root, end, copy);
    if (copy->HasChildren())
        copy->SetExtent(static_cast<uint32_t>(count));
    CountReferences(root, end);
}

void NodeList::AppendReference(CStreamio_object* target) {
    Append(Node(NodeKind::k_Reference, static_cast<void*>(target)));
    const Node* added = GetEnd() - 1;
    CountReferences(added, added + 1);
}

void NodeList::OpenLong(NodeKind kind, std::string_view name) {
    Open(new (MakeRoom(1)) Node(kind, name, Node::k_ShortName));
    Node::PutLongText(MakeRoom(Node::NodesForLongText(name.size())), name);
}

void NodeList::ShrinkToFit() {
    if (m_Storage->m_Users != 1)
        return;
    Resize(m_Storage->m_Size);
}

bool NodeList::TryClear() {
    if (m_Storage->m_Users != 1)
        return false;
    DropReferences(m_Storage);
    m_Storage->m_References = 0;
    m_Storage->m_InnermostOpen = 0;
    m_Storage->m_Size = GetRoot()->GetOwnNodes();
    return true;
}

NodeList::Storage* NodeList::Allocate(size_t capacity) {
    auto* storage = new (base::AllocateLarge(GetBytes(capacity))) Storage;
    storage->m_Capacity = capacity;
    return storage;
}

/// A storage without references is freed at once. Others go through a list, since dropping a reference can free an
/// object whose own storage holds the next reference, and so on to any depth.
void NodeList::Free(Storage* storage) {
    static Storage* waiting = nullptr;
    static bool isFreeing = false;
    storage->m_NextToFree = waiting;
    waiting = storage;
    if (isFreeing)
        return;
    isFreeing = true;
    while (waiting != nullptr) {
        Storage* next = std::exchange(waiting, waiting->m_NextToFree);
        DropReferences(next);
        base::FreeLarge(next, GetBytes(next->m_Capacity));
    }
    isFreeing = false;
}

void NodeList::DropReferences(Storage* storage) {
    if (storage->m_References == 0)
        return;
    const Node* end = storage->GetEnd();
    for (const Node* node = storage->GetNodes(); node != end; node += node->GetOwnNodes())
        if (node->GetKind() == NodeKind::k_Reference)
            CStreamio_object::Release(node->GetReference());
}

void NodeList::CountReferences(const Node* first, const Node* end) {
    for (const Node* node = first; node != end; node += node->GetOwnNodes()) {
        if (node->GetKind() != NodeKind::k_Reference || node->GetReference() == nullptr)
            continue;
        node->GetReference()->AddReference();
        ++m_Storage->m_References;
    }
}

void NodeList::Resize(size_t capacity) {
    void* resized = base::ResizeLarge(m_Storage, GetBytes(m_Storage->m_Capacity), GetBytes(capacity));
    m_Storage = static_cast<Storage*>(resized);
    m_Storage->m_Capacity = capacity;
}

void NodeList::ExpectText(size_t size) {
    constexpr size_t k_BytesPerNode = 2;
    m_Storage->m_Expected = std::min(size / k_BytesPerNode + 1, k_MaxNodes);
}

/// A tree that turns out to be large grows at once to what is expected of it. That is a guess, and tried once: a system
/// that has no room for it may well have room for what the tree really takes.
bool NodeList::GrowAsExpected(size_t capacity) {
    if (GetBytes(capacity) < base::k_LargeSize || m_Storage->m_Expected <= capacity)
        return false;
    const size_t expected = std::exchange(m_Storage->m_Expected, 0);
    void* grown = base::TryResizeLarge(m_Storage, GetBytes(m_Storage->m_Capacity), GetBytes(expected));
    if (grown == nullptr)
        return false;
    m_Storage = static_cast<Storage*>(grown);
    m_Storage->m_Capacity = expected;
    return true;
}

/// Grows to at least half as much again, so that appending n nodes costs n.
void NodeList::Reserve(size_t count) {
    if (count > k_MaxNodes - m_Storage->m_Size)
        throw std::length_error("a tree of blocks has more than 2^32 - 1 nodes");
    const size_t needed = m_Storage->m_Size + count;
    const size_t capacity = std::max(needed, m_Storage->m_Size + m_Storage->m_Size / 2 + k_FirstCapacity);
    if (m_Storage->m_Users == 1) {
        if (!GrowAsExpected(capacity))
            Resize(capacity);
        return;
    }
    Storage* own = Allocate(capacity);
    own->m_InnermostOpen = m_Storage->m_InnermostOpen;
    own->m_Size = m_Storage->m_Size;
    std::copy(m_Storage->GetNodes(), m_Storage->GetEnd(), own->GetNodes());
    --m_Storage->m_Users;
    m_Storage = own;
    CountReferences(GetRoot(), GetEnd());
}

} // namespace io
