#include "model/NameMap.h"

const AString& NameMap::Get(const AString& reference) {
    const auto [entry, isNew] = m_Names.try_emplace(reference);
    if (isNew)
        ++m_Uses[{}];
    return entry->second;
}

void NameMap::Set(const AString& reference, const AString& name) {
    const auto [entry, isNew] = m_Names.try_emplace(reference, name);
    if (!isNew) {
        const auto before = m_Uses.find(entry->second.GetFolded());
        if (--before->second == 0)
            m_Uses.erase(before);
        entry->second = name;
    }
    ++m_Uses[name.GetFolded()];
}
