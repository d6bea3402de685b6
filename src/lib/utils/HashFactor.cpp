#include "lib/utils/HashFactor.h"

#include <cstring>
#include <sys/auxv.h>

namespace {

/// The system hands every program some random bytes when it starts.
uint64_t GetRandom() {
    uint64_t random = 0x9E3779B97F4A7C15; // 2^64 over the golden ratio, where it has none
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the system tells the address as a number
    if (const auto* bytes = reinterpret_cast<const void*>(getauxval(AT_RANDOM)); bytes != nullptr)
        std::memcpy(&random, bytes, sizeof random);
    return random;
}

} // namespace

const uint64_t base::k_HashFactor = GetRandom() | 1;
