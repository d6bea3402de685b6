#ifndef QRL_BLOCKS_PLAINDECIMAL_H
#define QRL_BLOCKS_PLAINDECIMAL_H

namespace io {

/// Puts the shortest decimal text that reads back to the bits of `value` at `to`, which has room for 32 bytes, with
/// ".0" behind a whole number, and returns its end. Null, with nothing to be seen at `to`, for what isn't a usual
/// length of a board (0 and 0.01 to 1e6), for numbers whose shortest text has an exponent, and for some rare ones
/// between.
///
/// The text is that of `std::to_chars`, in a quarter of its time.
char* TryPutDecimal(char* to, double value);

} // namespace io

#endif
