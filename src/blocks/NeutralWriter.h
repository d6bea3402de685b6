#ifndef QRL_BLOCKS_NEUTRALWRITER_H
#define QRL_BLOCKS_NEUTRALWRITER_H

#include "blocks/CAbstract_ostream.h"
#include "blocks/CBlock.h"
#include "blocks/NumberMemo.h"

#include <cstring>
#include <deque>
#include <memory>
#include <string_view>
#include <vector>

namespace io {

/// Puts trees on a stream in the text form of the neutral file:
///
///     Name {                      a block with its items, each level one tab deeper
///         Unit = "mm"             a named value
///         Via(1, "A", "B", 0.5)   a func whose arguments are values: all on one line
///         Path(7,                 the first func among arguments, and all behind it, on lines of their own
///             Vertex(0.0, 0.0),
///             Arc(-0.5))
///         NULLPAD(Circle(0))      an only argument that is a func: on the same line
///     }
///
/// Walks with a stack of its own, so that any depth can be written, and hands the text on in large pieces.
class NeutralWriter {
public:
    explicit NeutralWriter(CAbstract_ostream& stream);

    /// Writes a block or func with a line end behind it.
    void Write(const TreeView& tree);
    void Write(const CBlock_deferred& block);
    /// Writes a named value with a line end behind it.
    void WriteNamedValue(std::string_view name, const CToken& value);
    /// Writes a value without a line end.
    void WriteValue(const CToken& value);

private:
    /// A block or func that is being written.
    struct Frame {
        const Node* m_Next = nullptr;
        const Node* m_End = nullptr;
        size_t m_Depth = 0; ///< of the line on which the name stands
        bool m_IsBlock = false;
        bool m_IsDeferred = false; ///< the items come from the last of `m_Deferred`
        bool m_IsFirst = true;     ///< no argument has been written yet
        bool m_IsBroken = false;   ///< each further argument takes a line of its own
    };
    /// A deferred block that is being written, and the items of it that are there just now.
    struct Deferred {
        const CBlock_deferred& m_Block;
        size_t m_NextIndex = 0;
        CBlock m_Items = CBlock();
    };

    void WriteFrames();
    void Enter(const Node* node, const Node* end, size_t depth);
    void Enter(const CBlock_deferred& block, size_t depth);
    void EnterReference(const CStreamio_object& target, size_t depth);
    void MakeItemsOrLeave(Frame& block);
    void Leave();
    void PutEnd(char mark);
    void WriteItem(Frame& block);
    void WriteArguments(Frame& func);
    void WriteFuncArgument(Frame& func);
    size_t StartArgument(Frame& func);
    const Node* PutRow(const Node* first, const Node* end);
    void PutNamedValue(std::string_view name, const Node& value, std::string_view text);
    void PutValue(const Node& value, std::string_view text);
    void PutKeyword(const Keyword& keyword);
    void PutText(const Node& text);
    void PutWord(const NodeValue& word);
    void PutWhole(int value);
    void PutNumber(double value);
    void PutLineStart(size_t depth);
    void PutName(const Node& node);
    void PutName(std::string_view name);
    void PutString(std::string_view text);
    void PutEscaped(char c);
    void Put(std::string_view text);
    void Put(char c) { *MakeRoom(1) = c; }
    /// What is known when this is compiled needs no call to be copied.
    template <size_t size>
    void PutMark(const char (&mark)[size]) {
        std::memcpy(MakeRoom(size - 1), mark, size - 1);
    }
    /// Room for `size` bytes, which count as written. `size` is far below that of the buffer.
    char* MakeRoom(size_t size) {
        if (size > static_cast<size_t>(m_End - m_At)) [[unlikely]]
            HandOn();
        m_At += size;
        return m_At - size;
    }
    void HandOn();

    CAbstract_ostream& m_Stream;
    std::vector<Frame> m_Frames;
    std::deque<Deferred> m_Deferred;
    NumberMemo m_Numbers;
    std::unique_ptr<char[]> m_Buffer;
    char* m_At;
    const char* m_End;
};

} // namespace io

#endif
