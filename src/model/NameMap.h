#ifndef QRL_MODEL_NAMEMAP_H
#define QRL_MODEL_NAMEMAP_H

#include "model/NameIndex_T.h"

#include <cstddef>

/// The names by which the board knows its components, by the references that the files use. Case matters in a
/// reference.
class NameMap {
public:
    /// The name that belongs to `reference`. A reference that is met for the first time enters with an empty name.
    const AString& Get(const AString& reference);
    /// Gives `reference` a name, in place of one that it may have.
    void Set(const AString& reference, const AString& name);
    bool HasReference(const AString& reference) const { return m_Names.Find(reference) != nullptr; }
    /// Whether a reference has this name, but for the case of the letters A to Z.
    bool HasName(const AString& name) const {
        const size_t* uses = m_Uses.Find(name);
        return uses != nullptr && *uses != 0;
    }

private:
    NameIndex_T<AString, CaseMatters> m_Names; ///< by reference
    NameIndex_T<size_t> m_Uses;                ///< how many references have a name
};

#endif
