#ifndef QRL_BLOCKS_CBLOCK_DEFERRED_H
#define QRL_BLOCKS_CBLOCK_DEFERRED_H

#include "blocks/CBlock_item.h"
#include "blocks/CBlock_ptr.h"

#include <functional>
#include <string_view>

namespace io {

class CBlock;

/// A block whose items are made only when they are written, and dropped again then. So the copper of a board, which is
/// far larger than all the rest of the tree, never stands in memory as a whole.
///
/// It stands in a tree by reference. Nothing can be read from it or counted, as it holds nothing.
class CBlock_deferred : public CBlock_item {
public:
    /// Appends the items of place `index` to `items`, as many as there are: none, one or more.
    using Maker = std::function<void(size_t index, CBlock& items)>;

    /// `maker` is called for each index from 0 up to, but excluding, `count`, in that order, each time that the block
    /// is written. What it refers to must outlive the last of these.
    CBlock_deferred(std::string_view name, size_t count, Maker maker);

    size_t GetCount() const { return m_Count; }
    void Make(size_t index, CBlock& items) const { m_Maker(index, items); }

    /// Always false: a text has no maker.
    bool read(CAbstract_istream& /*stream*/) override { return false; }
    void write(CAbstract_ostream& stream) const override;
    AString Name() const override { return m_Name.GetAString(); }
    void Name(const AString& name) override { m_Name = CToken::OfText(name.GetNarrow()); }
    const CToken& NameToken() const override { return m_Name; }
    int Size() const override { return 0; }
    void Clear() override { m_Count = 0; }
    bool IsBlock() const override { return true; }
    size_t SizeOf(bool withTree) const override;

private:
    CToken m_Name;
    size_t m_Count;
    Maker m_Maker;
};

using CBlockDeferredPtr = CBlock_ptr<CBlock_deferred>;

} // namespace io

#endif
