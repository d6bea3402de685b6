#include "fuzz/MemoryBoard.h"

#include "blocks/CBase_grammar.h"
#include "blocks/CToken_istream.h"
#include "blocks/NeutralReader.h"
#include "blocks/NeutralWriter.h"
#include "blocks/ReadBlock.h"
#include "blocks/TextStreams.h"
#include "neutral/Keywords.h"
#include "neutral/ZukenConverter.h"

#include <algorithm>

namespace {

constexpr std::string_view k_Numbered[] = {keyword::k_Via, keyword::k_Path, keyword::k_Circle, keyword::k_Polygon};

bool IsNumbered(const io::Node& node) {
    return node.GetKind() == io::NodeKind::k_Func &&
           std::find(std::begin(k_Numbered), std::end(k_Numbered), node.GetText()) != std::end(k_Numbered);
}

/// The first block of that name in `parent`; null when there is none, and in null.
const io::Node* FindBlock(const io::Node* parent, std::string_view name) {
    if (parent == nullptr)
        return nullptr;
    for (const io::Node* child = parent->GetFirstChild(); child != parent->GetNext(); child = child->GetNext())
        if (child->GetKind() == io::NodeKind::k_Block && child->GetText() == name)
            return child;
    return nullptr;
}

} // namespace

MemoryBoard::MemoryBoard(std::string_view text) : m_Pcf(TakeFile(text)), m_Ftf(TakeFile(text)), m_Txt(text) {}

std::string_view MemoryBoard::TakeFile(std::string_view& text) {
    const size_t size = text.find(k_NextFile);
    const std::string_view file = text.substr(0, size);
    text.remove_prefix(size == std::string_view::npos ? text.size() : size + k_NextFile.size());
    return file;
}

std::string MemoryBoard::Translate() const {
    ZukenPCBParser parser(ReadLists(m_Ftf), ReadLists(m_Pcf));
    parser.ParseFootprintFile();
    parser.ParseBoardFile();
    io::CToken_grammar grammar;
    grammar.CommentCharSet("#");
    io::CToken_istream sideText(m_Txt, grammar, io::CToken_istream::k_SideText);
    parser.ReadTextLines(sideText);
    io::TextOstream output;
    ZukenConverter({}, {}, {}, {}).WriteText(parser, output);
    return output.GetText();
}

io::CBlock ReadLists(std::string_view text) {
    io::CDelimiter_grammar grammar("()");
    grammar.CommentCharSet(";");
    io::CToken_istream stream(text, grammar, io::CToken_istream::k_Expressions);
    io::CBlock block("data");
    io::ReadBlock(stream, block);
    return block;
}

bool IsNeutralText(std::string_view text) {
    io::NeutralReader reader(text);
    const std::optional<io::TreeView> tree = reader.ReadTree();
    if (!tree || reader.GetConsumed() != text.size())
        return false;
    io::TextOstream again;
    io::NeutralWriter(again).Write(*tree);
    return again.GetText() == text;
}

bool AreIdsInOrder(std::string_view neutralText) {
    const std::optional<io::TreeView> tree = io::NeutralReader(neutralText).ReadTree();
    if (!tree)
        return false;
    const io::Node* block = tree->GetRoot();
    for (const char* name : {keyword::k_LayoutData, keyword::k_LayoutCell, keyword::k_Layout, keyword::k_LayoutNets})
        block = FindBlock(block, name);
    if (block == nullptr)
        return false;
    int lastId = 0;
    // Whatever holds others stands ahead of them, so this passes all of them in the order of the text.
    for (const io::Node* node = block; node != block->GetNext(); node += node->GetOwnNodes())
        if (IsNumbered(*node) && node->GetFirstChild()->GetInt() != ++lastId)
            return false;
    return true;
}
