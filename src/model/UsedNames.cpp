#include "model/UsedNames.h"

#include <vector>

namespace {

int32_t GetNext(int32_t n) { return static_cast<int32_t>(static_cast<uint32_t>(n) + 1U); }

AString GetNumbered(const AString& base, int32_t n) {
    AString name;
    name.Format(L"%s_%d", base, n);
    return name;
}

} // namespace

/// Numbers that were found taken are passed over by hops, and each search leads all hops that it took to its own end.
/// That bounds n searches by n log n hops, whatever the numbers at which they start.
AString UsedNames::AddNumbered(const AString& base, int32_t n) {
    Onward& onward = *m_OnwardByBase.TryAdd(base, {}).first;
    std::vector<int32_t> taken;
    AString name;
    int32_t candidate = GetNext(n);
    for (;;) {
        const auto hop = onward.find(candidate);
        if (hop == onward.end()) {
            name = GetNumbered(base, candidate);
            if (Add(name))
                break;
        }
        taken.push_back(candidate);
        candidate = hop == onward.end() ? GetNext(candidate) : hop->second;
    }
    for (const int32_t number : taken)
        onward[number] = candidate;
    return name;
}
