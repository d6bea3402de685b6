#ifndef QRL_MODEL_RECORDLIST_T_H
#define QRL_MODEL_RECORDLIST_T_H

#include "blocks/AString.h"
#include "model/NameIndex_T.h"

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

/// The records of one kind in the order in which they were made. Owns them; a record stays where it is until the list
/// goes. `Record` has a `GetName()`, by which it is found: the one that it had when it was added.
template <class Record>
class RecordList_T {
public:
    using Iterator = typename std::vector<Record*>::const_iterator;

    /// Appends a record and returns it.
    template <class Made>
    Made* Add(std::unique_ptr<Made> record) {
        Made* added = record.get();
        m_Owned.push_back(std::move(record));
        m_Records.push_back(added);
        m_FirstByName.TryAdd(added->GetName(), added);
        return added;
    }

    /// The first record whose name equals `name` but for the case of the letters A to Z; null when there is none.
    Record* Find(const AString& name) const { return Get(m_FirstByName.Find(name)); }
    Record* FindNarrow(std::string_view name) const { return Get(m_FirstByName.FindNarrow(name)); }

    /// Replaces `out` by the records, which stay the list's, and returns how many there are.
    int CopyTo(std::vector<Record*>& out) const {
        out = m_Records;
        return static_cast<int>(out.size());
    }

    bool IsEmpty() const { return m_Records.empty(); }
    size_t GetSize() const { return m_Records.size(); }
    Record* operator[](size_t index) const { return m_Records[index]; }
    Iterator begin() const { return m_Records.begin(); }
    Iterator end() const { return m_Records.end(); }

private:
    static Record* Get(Record* const* found) { return found == nullptr ? nullptr : *found; }

    std::vector<std::unique_ptr<Record>> m_Owned;
    std::vector<Record*> m_Records;
    NameIndex_T<Record*> m_FirstByName;
};

#endif
