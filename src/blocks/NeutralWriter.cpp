#include "blocks/NeutralWriter.h"

#include "blocks/CBlock.h"
#include "blocks/CBlock_func.h"
#include "blocks/ValueText.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace io {

namespace {

constexpr size_t k_BufferSize = size_t{256} * 1024;

/// The node behind `node` and any that stand for nothing.
const Node* SkipNothing(const Node* node, const Node* end) {
    while (node != end && node->GetKind() == NodeKind::k_Reference && node->GetReference() == nullptr)
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

} // namespace

NeutralWriter::NeutralWriter(CAbstract_ostream& stream)
    : m_Stream(stream), m_Buffer(std::make_unique_for_overwrite<char[]>(k_BufferSize)), m_At(m_Buffer.get()) {}

void NeutralWriter::Write(const TreeView& tree) {
    Enter(tree.GetRoot(), tree.GetEnd(), 0);
    while (!m_Frames.empty()) {
        Frame& frame = m_Frames.back();
        frame.m_Next = SkipNothing(frame.m_Next, frame.m_End);
        if (frame.m_Next == frame.m_End)
            Leave();
        else if (frame.m_IsBlock)
            WriteItem(frame);
        else
            WriteArgument(frame);
    }
    HandOn();
}

void NeutralWriter::WriteNamedValue(std::string_view name, const CToken& value) {
    PutNamedValue(name, value.GetNode(), value.GetText());
    HandOn();
}

void NeutralWriter::WriteValue(const CToken& value) {
    PutValue(value.GetNode(), value.GetText());
    HandOn();
}

void NeutralWriter::Enter(const Node* node, const Node* end, size_t depth) {
    const bool isBlock = node->GetKind() == NodeKind::k_Block;
    PutName(node->GetText());
    Put(isBlock ? " {\n" : "(");
    m_Frames.push_back({node->GetFirstChild(), end, depth, isBlock});
}

void NeutralWriter::Leave() {
    const Frame frame = m_Frames.back();
    m_Frames.pop_back();
    if (frame.m_IsBlock)
        PutLineStart(frame.m_Depth);
    Put(frame.m_IsBlock ? '}' : ')');
    if (frame.m_IsBlock || m_Frames.empty() || m_Frames.back().m_IsBlock)
        Put('\n');
}

void NeutralWriter::WriteItem(Frame& block) {
    const Node& item = *block.m_Next;
    const size_t depth = block.m_Depth + 1;
    block.m_Next = item.GetNext();
    PutLineStart(depth);
    const Node& value = *item.GetFirstChild();
    if (item.GetKind() == NodeKind::k_NamedValue)
        PutNamedValue(item.GetText(), value, NodeValue(value).GetText());
    else
        WriteEntry(item, depth);
}

void NeutralWriter::WriteArgument(Frame& func) {
    const Node& argument = *func.m_Next;
    func.m_Next = argument.GetNext();
    const bool isFunc = argument.HasChildren() || argument.GetKind() == NodeKind::k_Reference;
    const bool isOnly = func.m_IsFirst && SkipNothing(func.m_Next, func.m_End) == func.m_End;
    func.m_IsBroken = func.m_IsBroken || (isFunc && !isOnly);
    if (!func.m_IsFirst)
        Put(func.m_IsBroken ? "," : ", ");
    func.m_IsFirst = false;
    size_t depth = func.m_Depth;
    if (func.m_IsBroken) {
        ++depth;
        Put('\n');
        PutLineStart(depth);
    }
    WriteEntry(argument, depth);
}

/// What stands by reference is written as if it stood here.
void NeutralWriter::WriteEntry(const Node& entry, size_t depth) {
    if (entry.GetKind() == NodeKind::k_Reference) {
        const auto* func = dynamic_cast<const CBlock_func*>(entry.GetReference());
        const TreeView& tree =
            func != nullptr ? func->GetTree() : static_cast<const CBlock*>(entry.GetReference())->GetTree();
        Enter(tree.GetRoot(), tree.GetEnd(), depth);
    } else if (entry.HasChildren()) {
        Enter(&entry, entry.GetNext(), depth);
    } else {
        PutValue(entry, NodeValue(entry).GetText());
    }
}

void NeutralWriter::PutNamedValue(std::string_view name, const Node& value, std::string_view text) {
    PutName(name);
    Put(" = ");
    PutValue(value, text);
    Put('\n');
}

void NeutralWriter::PutValue(const Node& value, std::string_view text) {
    switch (value.GetKind()) {
    case NodeKind::k_Bool:
        Put(value.GetBool() ? "true" : "false");
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
    m_At = PutDouble(at, value);
}

void NeutralWriter::PutLineStart(size_t depth) {
    for (; depth != 0; --depth)
        Put('\t');
}

void NeutralWriter::PutName(std::string_view name) {
    if (IsIdentifier(name))
        Put(name);
    else
        PutString(name);
}

void NeutralWriter::PutString(std::string_view text) {
    const auto needsEscape = [](char c) { return k_NeedsEscape[static_cast<unsigned char>(c)]; };
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
    const auto room = static_cast<size_t>(m_Buffer.get() + k_BufferSize - m_At);
    if (text.size() > room)
        HandOn();
    if (text.size() > k_BufferSize) {
        m_Stream.Put(text);
        return;
    }
    m_At = std::copy(text.begin(), text.end(), m_At);
}

char* NeutralWriter::MakeRoom(size_t size) {
    if (m_At + size > m_Buffer.get() + k_BufferSize)
        HandOn();
    m_At += size;
    return m_At - size;
}

void NeutralWriter::HandOn() {
    m_Stream.Put({m_Buffer.get(), m_At});
    m_At = m_Buffer.get();
}

} // namespace io
