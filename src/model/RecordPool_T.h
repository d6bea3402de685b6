#ifndef QRL_MODEL_RECORDPOOL_T_H
#define QRL_MODEL_RECORDPOOL_T_H

#include <deque>
#include <memory_resource>
#include <utility>

/// Owns records that are reached through pointers of other records. A record stays where it is until the pool goes. A
/// record that takes an allocator gets its memory for lists from there too, so that it lies beside the record and
/// costs nothing to give back.
template <class Record>
class RecordPool_T {
public:
    /// The records lie in `memory`, which must outlive the pool.
    explicit RecordPool_T(std::pmr::memory_resource& memory) : m_Records(&memory) {}

    template <class... Args>
    Record* Make(Args&&... args) {
        return &m_Records.emplace_back(std::forward<Args>(args)...);
    }

private:
    std::pmr::deque<Record> m_Records;
};

#endif
