#ifndef QRL_BLOCKS_CBLOCK_FUNC_H
#define QRL_BLOCKS_CBLOCK_FUNC_H

#include "blocks/CBlock_item.h"
#include "blocks/CBlock_ptr.h"
#include "blocks/TreeView.h"

#include <memory>
#include <optional>
#include <string_view>

namespace io {

class CBlock_func;
class FuncRange;
using CBlockFuncPtr = CBlock_owner<CBlock_func>;

/// Handed to `>>`, stores whether the `>>` before it on the same func succeeded.
class Query_ok {
public:
    explicit Query_ok(bool& flag) : m_Flag(flag) {}
    void Set(bool isOk) const { m_Flag = isOk; }

private:
    bool& m_Flag;
};

/// A name with a list of arguments, each a value or another func, and a position from which values are read.
///
/// A copy shares the arguments until one of the two changes, and costs next to nothing; the read position is copied
/// too. With a name alone it serves as a query: the name says what `func >> query` looks for.
class CBlock_func : public CBlock_func_arg {
public:
    explicit CBlock_func(std::string_view name) : CBlock_func(TreeView(NodeKind::k_Func, name)) {}
    explicit CBlock_func(const char* name) : CBlock_func(std::string_view(name)) {}
    explicit CBlock_func(const AString& name) : CBlock_func(name.GetNarrow()) {}
    /// The func that `tree` stands for. Reading starts at its first argument.
    explicit CBlock_func(const TreeView& tree) : m_Tree(tree) {}
    CBlock_func(const CBlock_func& other);
    CBlock_func& operator=(const CBlock_func& other);
    ~CBlock_func() override = default;

    NodeIterator begin() const { return NodeIterator(m_Tree.GetBegin()); }
    NodeIterator end() const { return NodeIterator(m_Tree.GetEnd()); }
    /// The argument at `at`, alone: what is done to it doesn't reach this func, unless it stands here by reference. The
    /// pointer is null where a null pointer was appended.
    CBlock_ptr<CBlock_func_arg> Item(NodeIterator at) const;
    /// The arguments that are funcs, for a range-based for. What isn't one is passed over.
    FuncRange Funcs() const;

    /// The first argument that is a func of that name, but for case.
    std::optional<TreeView> FindFunc(std::string_view name) const;

    /// Whether the name equals `name` but for the case of the letters A to Z.
    bool NameIs(std::string_view name) const { return EqualsNoCase_G(m_Tree.GetName(), name); }

    /// Reads the argument at the read position and moves on. Where it is of another kind or missing, both stay.
    CBlock_func& operator>>(int& value);
    CBlock_func& operator>>(double& value);
    CBlock_func& operator>>(AString& value);
    /// Finds the first argument that is a func of the name of `query`, but for case, and gives `query` its name and
    /// arguments, to be read from the first. Where there is none `query` stays as it is.
    const CBlock_func& operator>>(CBlock_func& query) const;
    /// Tells whether the last `>>` of this object succeeded.
    const CBlock_func& operator>>(const Query_ok& query) const {
        query.Set(m_IsOk);
        return *this;
    }
    /// Puts the read position back to the first argument.
    void ResetRead() { m_Read = 0; }

    CBlock_func& operator<<(bool value);
    CBlock_func& operator<<(int value);
    CBlock_func& operator<<(double value);
    CBlock_func& operator<<(const AString& text);
    CBlock_func& operator<<(std::string_view text);
    CBlock_func& operator<<(const char* text) { return *this << std::string_view(text); }
    CBlock_func& operator<<(const wchar_t* text) { return *this << AString(text); }
    CBlock_func& operator<<(const CToken& token);
    CBlock_func& operator<<(const CBlock_func& func);
    CBlock_func& operator<<(const CBlock_ptr<CBlock_func>& func);
    CBlock_func& operator<<(const CBlockFuncPtr& func) { return *this << func.GetPtr(); }

    const TreeView& GetTree() const { return m_Tree; }

    bool read(CAbstract_istream& stream) override;
    void write(CAbstract_ostream& stream) const override;
    AString Name() const override { return AString(m_Tree.GetName()); }
    void Name(const AString& name) override;
    const CToken& NameToken() const override;
    int Size() const override { return m_Tree.GetCount(); }
    void Clear() override;
    bool IsFunc() const override { return true; }
    bool IsVec() const override { return true; }
    size_t SizeOf(bool withTree) const override;
    bool Query(wchar_t* /*value*/) const override { return false; }
    bool Query(bool& /*value*/) const override { return false; }
    bool Query(AString& /*value*/) const override { return false; }
    bool Query(unsigned long long& /*value*/) const override { return false; }
    bool Query(long long& /*value*/) const override { return false; }
    bool Query(unsigned long& /*value*/) const override { return false; }
    bool Query(unsigned int& /*value*/) const override { return false; }
    bool Query(unsigned short& /*value*/) const override { return false; }
    bool Query(long& /*value*/) const override { return false; }
    bool Query(int& /*value*/) const override { return false; }
    bool Query(short& /*value*/) const override { return false; }
    bool Query(float& /*value*/) const override { return false; }
    bool Query(double& /*value*/) const override { return false; }

private:
    friend class FuncRange;
    friend class FuncView;

    template <class T>
    CBlock_func& ReadValue(T& value);
    /// The func that the node refers to; null for any other node.
    static const CBlock_func* FuncOfReference(const Node& node) {
        return node.GetKind() == NodeKind::k_Reference ? ToFunc(node.GetReference()) : nullptr;
    }
    static const CBlock_func* ToFunc(const CStreamio_object* target);
    /// Becomes the func at `node`, which stands in the tree of `parent`. False, with nothing changed, when there is
    /// none.
    bool Enter(const TreeView& parent, const Node& node);
    NodeList& Change();

    TreeView m_Tree;
    size_t m_Read = 0; ///< nodes from the first argument to the next one to be read
    mutable bool m_IsOk = true;
    mutable std::unique_ptr<CToken> m_NameToken; ///< made when it is asked for
};

} // namespace io

#endif
