#ifndef QRL_BLOCKS_READBLOCK_H
#define QRL_BLOCKS_READBLOCK_H

#include "blocks/CBlock.h"
#include "blocks/CBlock_ptr.h"
#include "blocks/CToken_istream.h"

namespace io {

/// Reads the text of an exported file, nested lists in parentheses, to its end. Each list at top level becomes one func
/// of `block`, with the list's head as its name and its other elements as arguments:
///
///     (pcf board            a func "pcf" with the arguments
///       (header             "board", and a func "header" with
///         (unit DBUNIT)))   a func "unit"
///
/// What stands outside of any list is dropped. Text that can't be read ends the reading with one line on standard
/// output, `Parsing failed at line: N near REST`; the lists that were complete before stay in the block, and the result
/// is false.
bool ReadBlock(CToken_istream& stream, CBlock& block);

/// Reads one list whose opening parenthesis has been consumed, with all lists within it, and consumes the parenthesis
/// that closes it. The end of the text closes all that is open. A list without a head is named "__NIL__"; the content
/// of lists named "propertys" and "string" is passed over, up to the next closing parenthesis whatever that closes.
/// Throws `XStreamioError` where a list has another list for a head, or neither head nor end, and where a quoted
/// string is never closed. Takes no call stack per
/// level.
void ReadFunc(CToken_istream& stream, CBlock_ptr<CBlock_func>& func);

} // namespace io

#endif
