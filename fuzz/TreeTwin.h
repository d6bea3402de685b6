#ifndef QRL_FUZZ_TREETWIN_H
#define QRL_FUZZ_TREETWIN_H

#include "lib/containers/RangeAvlTree.h"
#include "tests/lib/containers/Interval.h"

#include <memory>
#include <vector>

/// A tree of intervals, one whose order nobody asked for, and a vector, which go through the same operations.
class TreeTwin {
public:
    /// Ahead of or behind the element at `place`; the end stands behind the last one.
    void Insert(size_t place, bool isBefore, const Interval& interval);
    /// What meets `filter` is what a look at each element finds.
    void Filter(const Interval& filter) const;
    /// Makes the tree anew from its elements.
    void Rebuild();
    void Compare() const;

private:
    using Tree = base::RangeAvlTree<Item, Interval>;
    using Plain = Tree::ParentClass;

    static std::vector<Item> FindIn(const Tree& tree, const Interval& filter);

    std::unique_ptr<Tree> m_Tree = std::make_unique<Tree>();
    Tree m_Unordered;
    std::vector<Item> m_Model;
    std::vector<Plain::Iterator> m_Places; ///< where the tree has the elements of the model
};

#endif
