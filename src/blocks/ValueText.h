#ifndef QRL_BLOCKS_VALUETEXT_H
#define QRL_BLOCKS_VALUETEXT_H

#include "blocks/Node.h"

#include <string>
#include <string_view>

namespace io {

/// Room that the text form of any double or int needs.
inline constexpr size_t k_NumberRoom = 32;

/// Puts the text form of `value` at `to`, which has `k_NumberRoom` bytes, and returns its end: the shortest decimal
/// text that reads back to the same bits, with ".0" behind one that would read as a whole number; `nan`, `inf`, `-inf`.
char* PutDouble(char* to, double value);
char* PutInt(char* to, int value);

/// Whether the neutral file lets `name` stand without quotes.
bool IsIdentifier(std::string_view name);

/// The text form of an int, double or bool node; empty for any other.
std::string ValueText(const Node& node);

} // namespace io

#endif
