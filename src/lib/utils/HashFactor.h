#ifndef QRL_LIB_UTILS_HASHFACTOR_H
#define QRL_LIB_UTILS_HASHFACTOR_H

#include <cstdint>

namespace base {

/// An odd number, another one in each run, by which hashes multiply: the upper bits of the product tell keys apart
/// whatever they are. Boards come from strangers, who could otherwise choose names and places that all fall together,
/// and make a table of n of them cost n squared. Nothing but time depends on it.
///
/// (M. Dietzfelbinger and others, "A reliable randomized algorithm for the closest-pair problem", 1997: two keys share
/// the upper b bits for at most 2 of 2^b odd factors.)
extern const uint64_t k_HashFactor;

} // namespace base

#endif
