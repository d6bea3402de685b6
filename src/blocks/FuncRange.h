#ifndef QRL_BLOCKS_FUNCRANGE_H
#define QRL_BLOCKS_FUNCRANGE_H

#include "blocks/CBlock_func.h"

#include <iterator>

namespace io {

/// The funcs among the arguments of a func or the items of a block, for a range-based for:
///
///     for (CBlock_func& layer : technology.Funcs())
///         if (layer.NameIs("layer")) ...
///
/// Each func is read from its first argument. It is the same object at each step, so a reader that wants to keep one
/// copies it, which costs next to nothing.
class FuncRange {
public:
    explicit FuncRange(const TreeView& parent) : m_Parent(parent) {}

    class Iterator {
    public:
        explicit Iterator(const TreeView& parent);
        CBlock_func& operator*() { return m_Func; }
        Iterator& operator++();
        bool operator==(std::default_sentinel_t /*end*/) const { return m_At == m_End; }

    private:
        void Settle();

        const TreeView& m_Parent;
        const Node* m_At;
        const Node* m_End;
        CBlock_func m_Func;
    };

    Iterator begin() const { return Iterator(m_Parent); }
    static std::default_sentinel_t end() { return {}; }

private:
    TreeView m_Parent;
};

} // namespace io

#endif
