#include "blocks/NeutralWriter.h"

#include "blocks/ValueText.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace io {

namespace {

constexpr size_t k_BufferSize = size_t{256} * 1024;
constexpr size_t k_Slack = 16; ///< behind the buffer's end, for copies of a fixed size

bool IsNothing(const Node& node) { return node.GetKind() == NodeKind::k_Reference && node.GetReference() == nullptr; }

bool IsValue(const Node& node) { return node.GetKind() < NodeKind::k_Func; }

/// The first node from `node` on that stands for something.
const Node* SkipNothing(const Node* node, const Node* end) {
    while (node != end && IsNothing(*node))
        ++node;
    return node;
}

constexpr bool NeedsEscape(char c) {
    return c == '"' || c == '\\' || static_cast<unsigned char>(c) < 0x20 || c == '\x7F';
}

constexpr auto k_NeedsEscape = [] {
    std::array<bool, 256> table = {};
    for (size_t i = 0; i < table.size(); ++i)
        table[i] = NeedsEscape(static_cast<char>(i));
    return table;
}();

/// Looks at all of the text, as most of them have none: that is quicker than to stop at the first.
bool HasSpecial(std::string_view text) {
    bool isSpecial = false;
    for (const char c : text)
        isSpecial |= k_NeedsEscape[static_cast<unsigned char>(c)];
    return isSpecial;
}

} // namespace

NeutralWriter::NeutralWriter(CAbstract_ostream& stream)
    : m_Stream(stream), m_Buffer(std::make_unique_for_overwrite<char[]>(k_BufferSize + k_Slack)), m_At(m_Buffer.get()),
      m_End(m_At + k_BufferSize) {}

void NeutralWriter::Write(const TreeView& tree) {
    Enter(tree.GetRoot(), tree.GetEnd(), 0);
    WriteFrames();
}

void NeutralWriter::Write(const CBlock_deferred& block) {
    Enter(block, 0);
    WriteFrames();
}

void NeutralWriter::WriteNamedValue(std::string_view name, const CToken& value) {
    PutNamedValue(name, value.GetNode(), value.GetText());
    HandOn();
}

void NeutralWriter::WriteValue(const CToken& value) {
    PutValue(value.GetNode(), value.GetText());
    HandOn();
}

void NeutralWriter::WriteFrames() {
    while (!m_Frames.empty()) {
        Frame& frame = m_Frames.back();
        frame.m_Next = SkipNothing(frame.m_Next, frame.m_End);
        if (frame.m_Next == frame.m_End)
            MakeItemsOrLeave(frame);
        else if (frame.m_IsBlock)
            WriteItem(frame);
        else
            WriteArguments(frame);
    }
    HandOn();
}

/// Most funcs hold values alone, and are over at once.
void NeutralWriter::Enter(const Node* node, const Node* end, size_t depth) {
    const Node* first = node->GetFirstChild();
    PutName(*node);
    if (node->GetKind() == NodeKind::k_Block) {
        PutMark(" {\n");
        m_Frames.push_back({.m_Next = first, .m_End = end, .m_Depth = depth, .m_IsBlock = true});
        return;
    }
    Put('(');
    const Node* rest = PutRow(first, end);
    if (rest == end)
        PutEnd(')');
    else
        m_Frames.push_back({.m_Next = rest, .m_End = end, .m_Depth = depth, .m_IsFirst = rest == first});
}

void NeutralWriter::Enter(const CBlock_deferred& block, size_t depth) {
    PutName(block.NameToken().GetText());
    PutMark(" {\n");
    m_Deferred.push_back({.m_Block = block});
    m_Frames.push_back({.m_Depth = depth, .m_IsBlock = true, .m_IsDeferred = true});
}

/// What stands by reference is written as if it stood here.
void NeutralWriter::EnterReference(const CStreamio_object& target, size_t depth) {
    if (const auto* func = dynamic_cast<const CBlock_func*>(&target))
        Enter(func->GetTree().GetRoot(), func->GetTree().GetEnd(), depth);
    else if (const auto* block = dynamic_cast<const CBlock*>(&target))
        Enter(block->GetTree().GetRoot(), block->GetTree().GetEnd(), depth);
    else
        Enter(static_cast<const CBlock_deferred&>(target), depth);
}

/// Has the next items of a deferred block made, in place of those that have been written.
void NeutralWriter::MakeItemsOrLeave(Frame& block) {
    if (!block.m_IsDeferred) {
        Leave();
        return;
    }
    Deferred& deferred = m_Deferred.back();
    CBlock& items = deferred.m_Items;
    items.Clear();
    while (items.begin() == items.end() && deferred.m_NextIndex < deferred.m_Block.GetCount())
        deferred.m_Block.Make(deferred.m_NextIndex++, items);
    block.m_Next = items.GetTree().GetBegin();
    block.m_End = items.GetTree().GetEnd();
    if (block.m_Next == block.m_End)
        Leave();
}

void NeutralWriter::Leave() {
    const Frame frame = m_Frames.back();
    m_Frames.pop_back();
    if (frame.m_IsDeferred)
        m_Deferred.pop_back();
    if (frame.m_IsBlock)
        PutLineStart(frame.m_Depth);
    PutEnd(frame.m_IsBlock ? '}' : ')');
}

/// Ends what stands in the innermost frame. A func among arguments has the rest of them on its line.
void NeutralWriter::PutEnd(char mark) {
    Put(mark);
    if (m_Frames.empty() || m_Frames.back().m_IsBlock)
        Put('\n');
}

void NeutralWriter::WriteItem(Frame& block) {
    const Node& item = *block.m_Next;
    const size_t depth = block.m_Depth + 1;
    block.m_Next = item.GetNext();
    PutLineStart(depth);
    if (item.GetKind() == NodeKind::k_Reference) {
        EnterReference(*item.GetReference(), depth);
    } else if (item.GetKind() == NodeKind::k_NamedValue) {
        const Node& value = *item.GetFirstChild();
        PutNamedValue(item.GetText(), value, NodeValue(value).GetText());
    } else {
        Enter(&item, item.GetNext(), depth);
    }
}

/// All up to the next func that isn't over at once, and that func's beginning.
void NeutralWriter::WriteArguments(Frame& func) {
    const size_t depth = m_Frames.size();
    while (m_Frames.size() == depth && func.m_Next != func.m_End) {
        const Node& node = *func.m_Next;
        if (IsValue(node)) {
            func.m_Next = node.GetNext();
            StartArgument(func);
            PutValue(node, NodeValue(node).GetText());
        } else if (!IsNothing(node)) {
            WriteFuncArgument(func);
        } else {
            ++func.m_Next;
        }
    }
}

void NeutralWriter::WriteFuncArgument(Frame& func) {
    const Node& argument = *func.m_Next;
    func.m_Next = argument.GetNext();
    const bool isOnly = func.m_IsFirst && SkipNothing(func.m_Next, func.m_End) == func.m_End;
    func.m_IsBroken = !isOnly;
    const size_t depth = StartArgument(func);
    if (argument.GetKind() == NodeKind::k_Reference)
        EnterReference(*argument.GetReference(), depth);
    else
        Enter(&argument, argument.GetNext(), depth);
}

/// Puts values on one line, up to the first node that is none, and returns that.
const Node* NeutralWriter::PutRow(const Node* first, const Node* end) {
    const Node* node = first;
    for (; node != end && IsValue(*node); node += node->GetOwnNodes()) {
        if (node != first)
            PutMark(", ");
        if (node->GetKind() == NodeKind::k_Double)
            PutNumber(node->GetDouble());
        else if (const Keyword* keyword = node->GetKeyword())
            PutKeyword(*keyword);
        else if (node->GetKind() == NodeKind::k_Text)
            PutText(*node);
        else
            PutValue(*node, NodeValue(*node).GetText());
    }
    return node;
}

/// Puts what stands ahead of an argument. Returns the depth of its line.
size_t NeutralWriter::StartArgument(Frame& func) {
    const bool isFirst = std::exchange(func.m_IsFirst, false);
    if (!func.m_IsBroken) {
        if (!isFirst)
            PutMark(", ");
        return func.m_Depth;
    }
    if (!isFirst)
        Put(',');
    Put('\n');
    PutLineStart(func.m_Depth + 1);
    return func.m_Depth + 1;
}

void NeutralWriter::PutNamedValue(std::string_view name, const Node& value, std::string_view text) {
    PutName(name);
    PutMark(" = ");
    PutValue(value, text);
    Put('\n');
}

void NeutralWriter::PutValue(const Node& value, std::string_view text) {
    switch (value.GetKind()) {
    case NodeKind::k_Bool:
        Put(std::string_view(value.GetBool() ? "true" : "false"));
        return;
    case NodeKind::k_Int:
        PutWhole(value.GetInt());
        return;
    case NodeKind::k_Double:
        PutNumber(value.GetDouble());
        return;
    case NodeKind::k_Word:
        PutWord(NodeValue(value, text));
        return;
    default:
        PutString(text);
    }
}

/// A bare token of an input: a number where it reads as one, in the form that its value has here.
void NeutralWriter::PutWord(const NodeValue& word) {
    int whole = 0;
    double number = 0.0;
    if (word.Query(whole))
        PutWhole(whole);
    else if (word.Query(number))
        PutNumber(number);
    else
        PutString(word.GetText());
}

void NeutralWriter::PutWhole(int value) {
    char* at = MakeRoom(k_NumberRoom);
    m_At = PutInt(at, value);
}

void NeutralWriter::PutNumber(double value) {
    char* at = MakeRoom(k_NumberRoom);
    m_At = m_Numbers.Put(at, value);
}

void NeutralWriter::PutLineStart(size_t depth) {
    while (depth != 0) {
        const size_t count = std::min(depth, k_Slack);
        std::memset(MakeRoom(count), '\t', k_Slack);
        depth -= count;
    }
}

void NeutralWriter::PutKeyword(const Keyword& keyword) {
    char* at = MakeRoom(Keyword::k_Room + 2);
    *at = '"';
    at = keyword.Put(at + 1);
    *at = '"';
    m_At = at + 1;
}

/// A short text in a node is copied with what stands behind it: to copy a known size is quicker.
void NeutralWriter::PutText(const Node& text) {
    const std::string_view view = text.GetText();
    if (!text.HasShortText() || HasSpecial(view)) {
        PutString(view);
        return;
    }
    char* at = MakeRoom(view.size() + 2);
    *at = '"';
    std::memcpy(at + 1, view.data(), Node::k_ShortText);
    at[view.size() + 1] = '"';
}

void NeutralWriter::PutName(const Node& node) {
    const std::string_view name = node.GetText();
    if (node.HasShortText() && IsIdentifier(name))
        std::memcpy(MakeRoom(name.size()), name.data(), Node::k_ShortText);
    else
        PutName(name);
}

void NeutralWriter::PutName(std::string_view name) {
    if (IsIdentifier(name))
        Put(name);
    else
        PutString(name);
}

void NeutralWriter::PutString(std::string_view text) {
    const auto needsEscape = [](char c) { return k_NeedsEscape[static_cast<unsigned char>(c)]; };
    constexpr size_t k_Short = 64;
    if (text.size() <= k_Short && !HasSpecial(text)) {
        char* at = MakeRoom(text.size() + 2);
        *at = '"';
        *std::copy(text.begin(), text.end(), at + 1) = '"';
        return;
    }
    Put('"');
    while (!text.empty()) {
        const auto special = std::find_if(text.begin(), text.end(), needsEscape);
        Put({text.begin(), special});
        text = {special, text.end()};
        if (text.empty())
            break;
        PutEscaped(text.front());
        text.remove_prefix(1);
    }
    Put('"');
}

void NeutralWriter::PutEscaped(char c) {
    constexpr std::string_view k_Special = "\"\\\n\r\t";
    constexpr std::string_view k_Letter = "\"\\nrt";
    constexpr char k_Digit[] = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    Put('\\');
    const size_t at = k_Special.find(c);
    if (at != std::string_view::npos) {
        Put(k_Letter[at]);
        return;
    }
    Put('x');
    Put(k_Digit[byte >> 4]);
    Put(k_Digit[byte & 0xF]);
}

void NeutralWriter::Put(std::string_view text) {
    if (text.size() > static_cast<size_t>(m_End - m_At))
        HandOn();
    if (text.size() > k_BufferSize) {
        m_Stream.Put(text);
        return;
    }
    m_At = std::copy(text.begin(), text.end(), m_At);
}

void NeutralWriter::HandOn() {
    m_Stream.Put({m_Buffer.get(), m_At});
    m_At = m_Buffer.get();
}

} // namespace io
