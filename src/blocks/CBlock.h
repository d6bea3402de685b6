#ifndef QRL_BLOCKS_CBLOCK_H
#define QRL_BLOCKS_CBLOCK_H

#include "blocks/CBlock_deferred.h"
#include "blocks/CBlock_func.h"
#include "blocks/CBlock_named_value.h"

namespace io {

class CBlock;
using CBlockPtr = CBlock_owner<CBlock>;

/// A name with a sequence of items: funcs, named values and other blocks. A copy shares the items until one of the two
/// changes, and costs next to nothing.
class CBlock : public CBlock_item {
public:
    CBlock() : CBlock("") {}
    explicit CBlock(std::string_view name) : CBlock(TreeView(NodeKind::k_Block, name)) {}
    explicit CBlock(const char* name) : CBlock(std::string_view(name)) {}
    explicit CBlock(const AString& name) : CBlock(name.GetNarrow()) {}
    /// The block that `tree` stands for.
    explicit CBlock(const TreeView& tree) : m_Tree(tree) {}
    CBlock(const CBlock& other) : CBlock(other.m_Tree) {}
    CBlock& operator=(const CBlock& other);
    ~CBlock() override = default;

    NodeIterator begin() const { return NodeIterator(m_Tree.GetBegin()); }
    NodeIterator end() const { return NodeIterator(m_Tree.GetEnd()); }
    /// The item at `at`, alone: what is done to it doesn't reach this block, unless it stands here by reference. The
    /// pointer is null where a null pointer was appended.
    CBlock_ptr<CBlock_item> Item(NodeIterator at) const;
    /// The items that are funcs, for a range-based for. What isn't one is passed over.
    FuncRange Funcs() const;

    CBlock& operator<<(const CBlock& block);
    CBlock& operator<<(const CBlock_func& func);
    CBlock& operator<<(const CBlock_named_value& value);
    CBlock& operator<<(const CBlockPtr& block);
    CBlock& operator<<(const CBlockDeferredPtr& block);
    CBlock& operator<<(const CBlock_ptr<CBlock_func>& func);
    CBlock& operator<<(const CBlockFuncPtr& func) { return *this << func.GetPtr(); }

    const TreeView& GetTree() const { return m_Tree; }

    bool read(CAbstract_istream& stream) override;
    void write(CAbstract_ostream& stream) const override;
    AString Name() const override { return AString(m_Tree.GetName()); }
    void Name(const AString& name) override;
    const CToken& NameToken() const override;
    int Size() const override { return m_Tree.GetCount(); }
    void Clear() override;
    bool IsBlock() const override { return true; }
    size_t SizeOf(bool withTree) const override;

private:
    friend class CBlock_open_func;

    NodeList& Change();

    TreeView m_Tree;
    mutable std::unique_ptr<CToken> m_NameToken; ///< made when it is asked for
};

} // namespace io

#endif
