#ifndef QRL_TESTS_BLOCKS_BLOCKTEXT_H
#define QRL_TESTS_BLOCKS_BLOCKTEXT_H

#include "blocks/CBlock.h"
#include "blocks/CBlock_func.h"
#include "blocks/FuncRange.h"
#include "blocks/ReadBlock.h"
#include "blocks/TextStreams.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace io {

/// The grammar of the exported lists: parentheses stand alone, a semicolon begins a comment.
inline CDelimiter_grammar ListGrammar() {
    CDelimiter_grammar grammar("()");
    grammar.CommentCharSet(";");
    return grammar;
}

/// A stream of tokens on `text`.
inline CToken_istream ListStream(std::string_view text) {
    return CToken_istream(text, ListGrammar(), CToken_istream::k_Expressions);
}

/// What became of a text that was read as lists.
struct ListResult {
    bool m_IsOk = false;
    CBlock m_Block;
    std::string m_Output; ///< all that went to standard output
};

inline ListResult ReadLists(std::string_view text) {
    CToken_istream stream = ListStream(text);
    ListResult result;
    testing::internal::CaptureStdout();
    result.m_IsOk = ReadBlock(stream, result.m_Block);
    result.m_Output = testing::internal::GetCapturedStdout();
    return result;
}

/// The first list of `text`, which has to be readable.
inline CBlock_func FuncOf(std::string_view text) {
    CBlock block;
    CToken_istream stream = ListStream(text);
    EXPECT_TRUE(ReadBlock(stream, block)) << text;
    for (CBlock_func& func : block.Funcs())
        return func;
    ADD_FAILURE() << "no list in " << text;
    return CBlock_func("");
}

/// The text form of an object.
inline std::string TextOf(const CStreamio_object& object) {
    TextOstream stream;
    object.write(stream);
    return stream.GetText();
}

inline std::string Outline(const CBlock_func& func);

/// A value, quoted when it was, or the outline of a func; `null` for a null pointer.
inline std::string OutlineOfArgument(const CBlock_func_arg* argument) {
    if (argument == nullptr)
        return "null";
    if (const auto* func = dynamic_cast<const CBlock_func*>(argument))
        return Outline(*func);
    const CToken token = dynamic_cast<const CBlock_value*>(argument)->GetToken();
    return token.GetKind() == NodeKind::k_Text ? '"' + token.GetNarrow() + '"' : token.GetNarrow();
}

/// The tree of a func on one line, as its iterators show it: `a(1 "x" b())`. For trees of little depth.
inline std::string Outline(const CBlock_func& func) {
    std::string text = func.Name().QRL_ANSI() + '(';
    for (NodeIterator at = func.begin(); at != func.end(); ++at) {
        if (at != func.begin())
            text += ' ';
        const CBlock_ptr<CBlock_func_arg> argument = func.Item(at);
        text += OutlineOfArgument(argument.Item());
    }
    return text + ')';
}

/// The tree of a block on one line: `B{f(1) n="x" C{}}`. For trees of little depth.
inline std::string Outline(const CBlock& block) {
    std::string text = block.Name().QRL_ANSI() + '{';
    for (NodeIterator at = block.begin(); at != block.end(); ++at) {
        if (at != block.begin())
            text += ' ';
        const CBlock_ptr<CBlock_item> pointer = block.Item(at);
        const CBlock_item* item = pointer.Item();
        if (const auto* inner = dynamic_cast<const CBlock*>(item))
            text += Outline(*inner);
        else if (const auto* named = dynamic_cast<const CBlock_named_value*>(item))
            text += named->Name().QRL_ANSI() + '=' + OutlineOfArgument(&named->Value());
        else
            text += OutlineOfArgument(dynamic_cast<const CBlock_func_arg*>(item));
    }
    return text + '}';
}

/// A func that counts how many of its kind are alive.
class CountedFunc : public CBlock_func {
public:
    CountedFunc(std::string_view name, int& alive) : CBlock_func(name), m_Alive(alive) { ++m_Alive; }
    CountedFunc(const CountedFunc&) = delete;
    CountedFunc& operator=(const CountedFunc&) = delete;
    ~CountedFunc() override { --m_Alive; }

private:
    int& m_Alive;
};

inline CBlock_ptr<CBlock_func> NewCounted(std::string_view name, int& alive) {
    return CBlock_ptr<CBlock_func>(new CountedFunc(name, alive));
}

} // namespace io

#endif
