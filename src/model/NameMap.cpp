#include "model/NameMap.h"

const AString& NameMap::Get(const AString& reference) {
    const auto [name, isNew] = m_Names.TryAdd(reference, {});
    if (isNew)
        ++*m_Uses.TryAdd({}, 0).first;
    return *name;
}

void NameMap::Set(const AString& reference, const AString& name) {
    const auto [current, isNew] = m_Names.TryAdd(reference, name);
    if (!isNew) {
        --*m_Uses.Find(*current);
        *current = name;
    }
    ++*m_Uses.TryAdd(name, 0).first;
}
