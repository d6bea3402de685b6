#ifndef QRL_MODEL_NAMEINDEX_T_H
#define QRL_MODEL_NAMEINDEX_T_H

#include "blocks/AString.h"
#include "lib/utils/HashFactor.h"

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

/// What makes two names equal for an index.
struct CaseIgnored { ///< of the letters A to Z
    static uint64_t GetKey(const AString& name) { return name.GetKeyNoCase(); }
    static bool AreEqual(const AString& a, const AString& b) { return a.CompareNoCase(b) == 0; }
    static bool AreEqual(const AString& a, std::string_view plain) { return io::EqualsNoCase_G(a.GetNarrow(), plain); }
};
struct CaseMatters {
    static uint64_t GetKey(const AString& name) { return name.GetKey(); }
    static bool AreEqual(const AString& a, const AString& b) { return a == b; }
};

/// Values by name. A name that was entered stays.
///
/// Shares the names' texts: an entry takes a handle and a value, and about three slots of 16 bytes. Names lie in the
/// order in which they came, so that those that are looked up in that order are found side by side.
template <class Value, class Case = CaseIgnored>
class NameIndex_T {
public:
    /// The value under `name`, good until the next name is entered; null when there is none.
    Value* Find(const AString& name) { return const_cast<Value*>(std::as_const(*this).Find(name)); }
    const Value* Find(const AString& name) const { return FindUnder(Case::GetKey(name), name); }
    /// The same for a narrow name, of which no wide one is made when it is plain.
    const Value* FindNarrow(std::string_view name) const requires std::same_as<Case, CaseIgnored> {
        const std::optional<uint64_t> key = io::KeyNoCase_G(name);
        return key ? FindUnder(*key, name) : Find(AString(name));
    }

    /// Enters `name` with `value`, unless it is there. Gives the value that it has then, good until the next name is
    /// entered, and whether it is new.
    std::pair<Value*, bool> TryAdd(const AString& name, const Value& value) {
        if ((m_Entries.size() + 1) * k_SlotsPerEntry > m_Slots.size())
            Grow();
        const uint64_t key = Case::GetKey(name);
        Slot& slot = m_Slots[FindSlot(key, name)];
        const bool isNew = slot.m_Entry == k_Free;
        if (isNew) {
            slot = {key, static_cast<uint32_t>(m_Entries.size())};
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
    /// Of a table with open addressing: an entry stands in the slot of its key or one of the next. With the key at hand
    /// a short name is never touched, and of the others only the one that is looked for.
    struct Slot {
        uint64_t m_Key = 0;
        uint32_t m_Entry = k_Free;
    };

    template <class Name>
    const Value* FindUnder(uint64_t key, const Name& name) const {
        if (m_Entries.empty())
            return nullptr;
        const Slot& slot = m_Slots[FindSlot(key, name)];
        return slot.m_Entry == k_Free ? nullptr : &m_Entries[slot.m_Entry].m_Value;
    }

    /// Where the search for a key begins.
    size_t GetPlace(uint64_t key) const { return key * base::k_HashFactor >> m_Shift; }

    template <class Name>
    bool Holds(const Slot& slot, uint64_t key, const Name& name) const {
        return slot.m_Key == key && (io::IsWholeKey_G(key) || Case::AreEqual(m_Entries[slot.m_Entry].m_Name, name));
    }

    /// The slot of the name, or the free one in which it would stand.
    template <class Name>
    size_t FindSlot(uint64_t key, const Name& name) const {
        size_t at = GetPlace(key);
        while (m_Slots[at].m_Entry != k_Free && !Holds(m_Slots[at], key, name))
            at = (at + 1) & (m_Slots.size() - 1);
        return at;
    }

    void Grow() {
        std::vector<Slot> old(m_Slots.empty() ? k_FewestSlots : 2 * m_Slots.size());
        old.swap(m_Slots);
        m_Shift = 64 - std::countr_zero(m_Slots.size());
        for (const Slot& slot : old) {
            size_t at = GetPlace(slot.m_Key);
            while (slot.m_Entry != k_Free && m_Slots[at].m_Entry != k_Free)
                at = (at + 1) & (m_Slots.size() - 1);
            if (slot.m_Entry != k_Free)
                m_Slots[at] = slot;
        }
    }

    std::vector<Entry> m_Entries;
    std::vector<Slot> m_Slots; ///< a power of two
    int m_Shift = 0;           ///< leaves as many upper bits of a product as there are slots for
};

#endif
