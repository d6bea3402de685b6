#include "model/UsedNames.h"

#include <utility>

namespace {

int32_t GetNext(int32_t n) { return static_cast<int32_t>(static_cast<uint32_t>(n) + 1U); }

AString GetNumbered(const AString& base, int32_t n) {
    AString name;
    name.Format(L"%s_%d", base, n);
    return name;
}

} // namespace

/// Numbers that were found taken are passed over by hops, and each search leads all hops that it took behind its own
/// end, which is taken then. That bounds n searches by n log n hops, whatever the numbers at which they start.
AString UsedNames::AddNumbered(const AString& base, int32_t n) {
    Onward& onward = *m_OnwardByBase.TryAdd(base, {}).first;
    AString name;
    int32_t candidate = GetNext(n);
    for (;;) {
        const auto hop = onward.find(candidate);
        if (hop != onward.end()) {
            candidate = hop->second;
            continue;
        }
        name = GetNumbered(base, candidate);
        if (Add(name))
            break;
        candidate = GetNext(candidate);
    }
    for (int32_t taken = GetNext(n); taken != candidate;) {
        const auto [hop, isNew] = onward.try_emplace(taken, GetNext(taken));
        taken = std::exchange(hop->second, GetNext(candidate));
    }
    return name;
}
