#ifndef QRL_BLOCKS_CBLOCK_OPEN_FUNC_H
#define QRL_BLOCKS_CBLOCK_OPEN_FUNC_H

#include "blocks/CBlock.h"

#include <utility>

namespace io {

/// A func that is made where it stands, as the last item of a block or the last argument of another open func. Nothing
/// is copied, which counts where there are millions of them:
///
///     CBlock_open_func vertex(path, "Vertex");
///     vertex << x << y;
///
/// It is complete when this object goes. Until then nothing may be appended to what it stands in, and that may neither
/// be copied nor read.
class CBlock_open_func {
public:
    CBlock_open_func(CBlock& block, std::string_view name) : CBlock_open_func(block.Change(), name) {}
    CBlock_open_func(CBlock& block, const AString& name) : CBlock_open_func(block, name.GetNarrow()) {}
    CBlock_open_func(CBlock& block, const char* name) : CBlock_open_func(block, std::string_view(name)) {}
    CBlock_open_func(CBlock_open_func& func, std::string_view name) : CBlock_open_func(func.m_Nodes, name) {}
    CBlock_open_func(const CBlock_open_func&) = delete;
    CBlock_open_func& operator=(const CBlock_open_func&) = delete;
    ~CBlock_open_func() { m_Nodes.Close(); }

    CBlock_open_func& operator<<(bool value) { return Append(value); }
    CBlock_open_func& operator<<(int value) { return Append(value); }
    CBlock_open_func& operator<<(double value) { return Append(value); }
    CBlock_open_func& operator<<(std::string_view text) {
        m_Nodes.AppendText(NodeKind::k_Text, text);
        return *this;
    }
    /// The keyword must be there as long as the tree.
    CBlock_open_func& operator<<(const Keyword& keyword) {
        m_Nodes.AppendValue(keyword);
        return *this;
    }
    CBlock_open_func& operator<<(const Keyword&& keyword) = delete;
    CBlock_open_func& operator<<(const char* text) { return *this << std::string_view(text); }
    CBlock_open_func& operator<<(const AString& text) { return *this << text.GetNarrow(); }

    /// The same as one `<<` for each of the values, which are truth values, numbers and keywords, in less time.
    template <class... Values>
    void AppendRow(Values&&... values) {
        m_Nodes.AppendRow(std::forward<Values>(values)...);
    }

private:
    CBlock_open_func(NodeList& nodes, std::string_view name) : m_Nodes(nodes) { m_Nodes.Open(NodeKind::k_Func, name); }

    template <class Value>
    CBlock_open_func& Append(Value value) {
        m_Nodes.AppendValue(value);
        return *this;
    }

    NodeList& m_Nodes;
};

} // namespace io

#endif
