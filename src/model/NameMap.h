#ifndef QRL_MODEL_NAMEMAP_H
#define QRL_MODEL_NAMEMAP_H

#include "blocks/AString.h"

#include <cstddef>
#include <map>
#include <string>
#include <unordered_map>

/// The names by which the board knows its components, by the references that the files use. Case matters in a
/// reference.
class NameMap {
public:
    /// The name that belongs to `reference`. A reference that is met for the first time enters with an empty name.
    const AString& Get(const AString& reference);
    /// Gives `reference` a name, in place of one that it may have.
    void Set(const AString& reference, const AString& name);
    bool HasReference(const AString& reference) const { return m_Names.contains(reference); }
    /// Whether a reference has this name, but for the case of the letters A to Z.
    bool HasName(const AString& name) const { return m_Uses.contains(name.GetFolded()); }

private:
    std::map<AString, AString> m_Names;
    std::unordered_map<std::u16string, size_t> m_Uses; ///< how many references have a name, by folded name
};

#endif
