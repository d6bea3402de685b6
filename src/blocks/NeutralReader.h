#ifndef QRL_BLOCKS_NEUTRALREADER_H
#define QRL_BLOCKS_NEUTRALREADER_H

#include "blocks/CToken.h"
#include "blocks/TreeView.h"

#include <optional>
#include <string>
#include <string_view>

namespace io {

/// Reads the text form of the neutral file back into trees. Strict: text is accepted only when writing the result gives
/// the same bytes again. Walks with no recursion, so that any depth can be read.
class NeutralReader {
public:
    /// Stands at the start of `text`, which must outlive the reader.
    explicit NeutralReader(std::string_view text) : m_Text(text) {}

    /// A block or func with the line end behind it. Nothing when the text doesn't begin with one.
    std::optional<TreeView> ReadTree();
    /// A name and a value, with the line end behind them.
    struct NamedValue {
        std::string m_Name;
        CToken m_Value;
    };
    std::optional<NamedValue> ReadNamedValue();
    /// A value alone.
    std::optional<CToken> ReadValue();

    /// How many bytes have been accepted so far.
    size_t GetConsumed() const { return m_Accepted; }

private:
    bool ReadItem(NodeList& nodes);
    bool ReadArgument(NodeList& nodes);
    bool Open(NodeList& nodes, const std::string& name);
    std::optional<std::string> ReadName();
    std::optional<std::string> ReadString();
    std::optional<char> ReadEscape();
    std::optional<CToken> ParseValue();
    static std::optional<CToken> ParseBareValue(std::string_view text);

    void SkipBlanks();
    bool Take(char c);
    char Peek() const { return m_At < m_Text.size() ? m_Text[m_At] : '\0'; }
    bool Accept(std::string_view written);

    std::string_view m_Text;
    size_t m_At = 0;       ///< what has been looked at
    size_t m_Accepted = 0; ///< what has been given out
};

} // namespace io

#endif
