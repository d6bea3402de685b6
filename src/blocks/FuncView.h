#ifndef QRL_BLOCKS_FUNCVIEW_H
#define QRL_BLOCKS_FUNCVIEW_H

#include "blocks/CBlock_func.h"
#include "blocks/CToken.h"

#include <iterator>
#include <string_view>

namespace io {

/// A func of a tree, read in place: for readers that see millions of them. Unlike a `CBlock_func` it keeps nothing
/// alive, so it is good only as long as the tree stays as it is. A copy costs three pointers, and has a read position
/// of its own. Only values are ever read, so all funcs stand behind that position.
///
///     for (FuncView point : line.Find("vertex").Funcs())
///         if (point.NameIs("pt"))
///             point >> x >> y;
class FuncView {
public:
    class Range;

    /// What stands for a func that isn't there: nameless and without arguments.
    FuncView() = default;
    /// Reading starts at the first argument, wherever `func` is being read.
    FuncView(const CBlock_func& func) : FuncView(func.GetTree()) {} // NOLINT(google-explicit-constructor)

    /// Whether there is a func.
    explicit operator bool() const { return m_Func != nullptr; }
    /// Whether the name equals `name` but for the case of the letters A to Z. False for a func that isn't there.
    bool NameIs(std::string_view name) const { return m_Func != nullptr && EqualsNoCase_G(m_Func->GetText(), name); }
    /// The first argument that is a func of that name, but for case.
    FuncView Find(std::string_view name) const;
    /// The arguments that are funcs. What isn't one is passed over.
    Range Funcs() const;

    /// The text at the read position, good as long as the tree is; empty where a number or nothing stands there.
    std::string_view GetText() const {
        std::string_view text;
        if (m_Next != m_End)
            NodeValue(*m_Next).Query(text);
        return text;
    }

    /// Reads the argument at the read position and moves on. Where it is of another kind or missing, both stay.
    FuncView& operator>>(int& value) { return ReadValue(value); }
    FuncView& operator>>(double& value) { return ReadValue(value); }
    FuncView& operator>>(AString& value);

private:
    explicit FuncView(const TreeView& tree) : m_Func(tree.GetRoot()), m_Next(tree.GetBegin()), m_End(tree.GetEnd()) {}
    explicit FuncView(const Node& func) : m_Func(&func), m_Next(func.GetFirstChild()), m_End(func.GetNext()) {}
    /// The func that a node is or refers to; none for any other node.
    static FuncView OfNode(const Node& node);

    template <class T>
    FuncView& ReadValue(T& value) {
        if (m_Next != m_End && NodeValue(*m_Next).Query(value))
            m_Next = m_Next->GetNext();
        return *this;
    }

    const Node* m_Func = nullptr;
    const Node* m_Next = nullptr; ///< the argument at the read position
    const Node* m_End = nullptr;
};

/// For a range-based for.
class FuncView::Range {
public:
    Range(const Node* first, const Node* end) : m_First(first), m_End(end) {}

    class Iterator {
    public:
        Iterator(const Node* at, const Node* end) : m_At(at), m_End(end) { Settle(); }
        FuncView operator*() const { return m_Func; }
        Iterator& operator++() {
            m_At = m_At->GetNext();
            Settle();
            return *this;
        }
        bool operator==(std::default_sentinel_t /*end*/) const { return m_At == m_End; }

    private:
        /// Goes on to the next node that is a func, itself or by reference.
        void Settle() {
            for (; m_At != m_End; m_At = m_At->GetNext()) {
                m_Func = OfNode(*m_At);
                if (m_Func)
                    return;
            }
        }

        const Node* m_At;
        const Node* m_End;
        FuncView m_Func;
    };

    Iterator begin() const { return {m_First, m_End}; }
    static std::default_sentinel_t end() { return {}; }

private:
    const Node* m_First;
    const Node* m_End;
};

inline FuncView FuncView::OfNode(const Node& node) {
    if (node.GetKind() == NodeKind::k_Func)
        return FuncView(node);
    const CBlock_func* referenced = CBlock_func::FuncOfReference(node);
    return referenced == nullptr ? FuncView() : FuncView(*referenced);
}

inline FuncView::Range FuncView::Funcs() const { return {m_Next, m_End}; }

} // namespace io

#endif
