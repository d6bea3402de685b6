#ifndef QRL_MODEL_NAMEINDEX_T_H
#define QRL_MODEL_NAMEINDEX_T_H

#include "blocks/AString.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

/// What makes two names equal for an index.
struct CaseIgnored { ///< of the letters A to Z
    static uint64_t GetHash(const AString& name) { return name.GetHashNoCase(); }
    static bool AreEqual(const AString& a, const AString& b) { return a.CompareNoCase(b) == 0; }
};
struct CaseMatters {
    static uint64_t GetHash(const AString& name) { return name.GetHash(); }
    static bool AreEqual(const AString& a, const AString& b) { return a == b; }
};

/// Values by name. A name that was entered stays.
///
/// Shares the names' texts: an entry takes a handle and a value, and about three slots of 8 bytes. Names lie in the
/// order in which they came, so that those that are looked up in that order are found side by side.
template <class Value, class Case = CaseIgnored>
class NameIndex_T {
public:
    /// The value under `name`, good until the next name is entered; null when there is none.
    Value* Find(const AString& name) { return const_cast<Value*>(std::as_const(*this).Find(name)); }
    const Value* Find(const AString& name) const {
        if (m_Entries.empty())
            return nullptr;
        const Slot& slot = m_Slots[FindSlot(name, HashOf(name))];
        return slot.m_Entry == k_Free ? nullptr : &m_Entries[slot.m_Entry].m_Value;
    }

    /// Enters `name` with `value`, unless it is there. Gives the value that it has then, good until the next name is
    /// entered, and whether it is new.
    std::pair<Value*, bool> TryAdd(const AString& name, const Value& value) {
        if ((m_Entries.size() + 1) * k_SlotsPerEntry > m_Slots.size())
            Grow();
        const uint32_t hash = HashOf(name);
        Slot& slot = m_Slots[FindSlot(name, hash)];
        const bool isNew = slot.m_Entry == k_Free;
        if (isNew) {
            slot = {hash, static_cast<uint32_t>(m_Entries.size())};
            m_Entries.push_back({name, value});
        }
        return {&m_Entries[slot.m_Entry].m_Value, isNew};
    }

private:
    static constexpr uint32_t k_Free = std::numeric_limits<uint32_t>::max();
    static constexpr size_t k_FewestSlots = 8;
    static constexpr size_t k_SlotsPerEntry = 2; ///< at least: a search then ends after a slot or two

    struct Entry {
        AString m_Name;
        [[no_unique_address]] Value m_Value;
    };
    /// Of a table with open addressing: an entry stands in the slot of its hash or one of the next. With the hash at
    /// hand only the name that is looked for is ever touched.
    struct Slot {
        uint32_t m_Hash = 0;
        uint32_t m_Entry = k_Free;
    };

    static uint32_t HashOf(const AString& name) { return static_cast<uint32_t>(Case::GetHash(name) >> 32); }

    /// The slot of the name, or the free one in which it would stand.
    size_t FindSlot(const AString& name, uint32_t hash) const {
        size_t at = hash & (m_Slots.size() - 1);
        while (m_Slots[at].m_Entry != k_Free &&
               (m_Slots[at].m_Hash != hash || !Case::AreEqual(m_Entries[m_Slots[at].m_Entry].m_Name, name)))
            at = (at + 1) & (m_Slots.size() - 1);
        return at;
    }

    void Grow() {
        std::vector<Slot> old(m_Slots.empty() ? k_FewestSlots : 2 * m_Slots.size());
        old.swap(m_Slots);
        for (const Slot& slot : old) {
            size_t at = slot.m_Hash & (m_Slots.size() - 1);
            while (slot.m_Entry != k_Free && m_Slots[at].m_Entry != k_Free)
                at = (at + 1) & (m_Slots.size() - 1);
            if (slot.m_Entry != k_Free)
                m_Slots[at] = slot;
        }
    }

    std::vector<Entry> m_Entries;
    std::vector<Slot> m_Slots; ///< a power of two
};

#endif
