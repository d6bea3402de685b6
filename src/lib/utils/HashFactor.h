#ifndef QRL_LIB_UTILS_HASHFACTOR_H
#define QRL_LIB_UTILS_HASHFACTOR_H

#include <cstddef>
#include <cstdint>

namespace base {

/// An odd number, another one in each run, by which hashes multiply: the upper bits of the product tell keys apart
/// whatever they are. Boards come from strangers, who could otherwise choose names and places that all fall together,
/// and make a table of n of them cost n squared. Nothing but time depends on it.
///
/// (M. Dietzfelbinger and others, "A reliable randomized algorithm for the closest-pair problem", 1997: two keys share
/// the upper b bits for at most 2 of 2^b odd factors.)
extern const uint64_t k_HashFactor;

/// The hash of a whole number for the containers of the standard library, which take the number itself by default.
struct NumberHash {
    size_t operator()(int32_t number) const {
        return static_cast<size_t>(static_cast<uint32_t>(number) * k_HashFactor >> 32);
    }
};

} // namespace base

#endif
