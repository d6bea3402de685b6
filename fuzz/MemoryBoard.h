#ifndef QRL_FUZZ_MEMORYBOARD_H
#define QRL_FUZZ_MEMORYBOARD_H

#include "blocks/CBlock.h"

#include <string>
#include <string_view>

/// A line that ends one file of a board and begins the next, in an input that holds a whole board.
inline constexpr std::string_view k_NextFile = "\n====\n";

/// A board whose three files are one text: board file, footprint file, side file, with a line `====` between each two.
/// Files that are missing are empty.
class MemoryBoard {
public:
    explicit MemoryBoard(std::string_view text);

    /// The neutral file of the board. Touches no file.
    std::string Translate() const;

private:
    static std::string_view TakeFile(std::string_view& text);

    std::string_view m_Pcf;
    std::string_view m_Ftf;
    std::string_view m_Txt;
};

/// The lists of an exported file, as far as they can be read.
io::CBlock ReadLists(std::string_view text);

/// Whether the strict reader takes `text`, to its last byte, for one block that is written back to the same bytes.
bool IsNeutralText(std::string_view text);

/// Whether vias, paths, circles and polygons of the nets in a neutral file are numbered from 1 on, in their order.
bool AreIdsInOrder(std::string_view neutralText);

#endif
