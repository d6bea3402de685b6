#include "lib/utils/HashFactor.h"

#include <cstring>
#include <sys/auxv.h>

namespace {

/// The system hands every program some random bytes when it starts.
uint64_t GetRandom() {
    uint64_t random = 0x9E3779B97F4A7C15; // 2^64 over the golden ratio, where it has none
    if (const unsigned long address = getauxval(AT_RANDOM); address != 0)
        // The system tells the address as a number.
        std::memcpy(
            &random, reinterpret_cast<const void*>(address), sizeof random); // NOLINT(performance-no-int-to-ptr)
    return random;
}

} // namespace

const uint64_t base::k_HashFactor = GetRandom() | 1;
