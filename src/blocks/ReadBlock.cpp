#include "blocks/ReadBlock.h"

#include <iostream>

namespace io {

namespace {

constexpr std::string_view k_NamelessList = "__NIL__";

/// Whether the content of a list of this name is to be passed over.
bool IsPassedOver(std::string_view name) { return EqualsNoCase_G(name, "propertys") || EqualsNoCase_G(name, "string"); }

/// Consumes all up to the next closing parenthesis, whatever list that closes, and that too. A quoted ")" ends it as
/// well.
void PassOver(CToken_istream& stream) {
    while (!stream.Ended())
        if (stream.ReadToken().m_Text == ")")
            return;
}

/// The name of the list whose opening parenthesis has just been consumed.
std::string_view ReadName(CToken_istream& stream) {
    if (!stream.NextIsName())
        throw XStreamioError(0);
    return stream.ReadToken().m_Text;
}

/// Opens the list whose opening parenthesis has just been consumed, and closes it where it is complete already.
void OpenList(CToken_istream& stream, NodeList& nodes) {
    if (stream.NextIs(')')) {
        stream.Skip();
        nodes.Open(NodeKind::k_Func, k_NamelessList);
        nodes.Close();
        return;
    }
    const std::string_view name = ReadName(stream);
    nodes.OpenPadded(name);
    if (IsPassedOver(name)) {
        PassOver(stream);
        nodes.Close();
    }
}

/// Consumes the elements of the root list of `nodes` and the parenthesis that closes it. At the end of the text every
/// open list closes in turn.
void ReadElements(CToken_istream& stream, NodeList& nodes) {
    for (;;) {
        const CToken_istream::Token token = stream.ReadToken();
        if (token.m_Kind == NodeKind::k_Text) {
            nodes.AppendText(NodeKind::k_Text, token.m_Text);
        } else if (token.m_Kind == NodeKind::k_Empty || token.m_Text.front() == ')') {
            if (!nodes.HasOpen())
                return;
            nodes.Close();
        } else if (token.m_Text.front() == '(') {
            OpenList(stream, nodes);
        } else {
            nodes.AppendPaddedWord(token.m_Text);
        }
    }
}

void PrintFailure(CToken_istream& stream) {
    AString rest;
    stream.NewLine(rest);
    AString line;
    line.Format(L"Parsing failed at line: %d near ", stream.LineNumber() - 1);
    std::cout << line.QRL_ANSI() << rest.QRL_ANSI() << std::endl;
}

} // namespace

void ReadFunc(CToken_istream& stream, CBlock_ptr<CBlock_func>& func) {
    if (stream.NextIs(')')) {
        stream.Skip();
        func = CBlock_ptr<CBlock_func>(new CBlock_func(k_NamelessList));
        return;
    }
    const std::string_view name = ReadName(stream);
    TreeView tree(NodeKind::k_Func, name);
    NodeList& nodes = tree.Own();
    nodes.ExpectText(stream.GetRest().size());
    if (IsPassedOver(name))
        PassOver(stream);
    else
        ReadElements(stream, nodes);
    nodes.ShrinkToFit();
    func = CBlock_ptr<CBlock_func>(new CBlock_func(tree));
}

bool ReadBlock(CToken_istream& stream, CBlock& block) {
    try {
        while (!stream.AtEnd()) {
            const bool isList = stream.NextIs('(');
            stream.Skip();
            if (!isList)
                continue;
            CBlock_ptr<CBlock_func> func;
            ReadFunc(stream, func);
            block << func;
        }
        return true;
    } catch (...) {
        PrintFailure(stream);
        return false;
    }
}

} // namespace io
