#ifndef QRL_MODEL_USEDNAMES_H
#define QRL_MODEL_USEDNAMES_H

#include "lib/utils/HashFactor.h"
#include "model/NameIndex_T.h"

#include <cstdint>
#include <unordered_map>

/// Names that are taken, case by case as they are spelt. A name never becomes free again, so that a search for a free
/// number needn't go over those that an earlier one found taken: n names made from one take about n steps.
class UsedNames {
public:
    bool Contains(const AString& name) const { return m_Names.Find(name) != nullptr; }
    /// Takes the name; false when it was taken already.
    bool Add(const AString& name) { return m_Names.TryAdd(name, {}).second; }
    /// Takes and returns the first of "BASE_n+1", "BASE_n+2", ... that is free. The number wraps around in 32 bits.
    AString AddNumbered(const AString& base, int32_t n);

private:
    /// A number that is taken, to one from which to search on.
    using Onward = std::unordered_map<int32_t, int32_t, base::NumberHash>;

    struct Nothing {};

    NameIndex_T<Nothing, CaseMatters> m_Names;
    NameIndex_T<Onward, CaseMatters> m_OnwardByBase;
};

#endif
