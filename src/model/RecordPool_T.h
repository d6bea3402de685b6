#ifndef QRL_MODEL_RECORDPOOL_T_H
#define QRL_MODEL_RECORDPOOL_T_H

#include <deque>
#include <utility>

/// Owns records that are reached through pointers of other records. A record stays where it is until the pool goes.
template <class Record>
class RecordPool_T {
public:
    template <class... Args>
    Record* Make(Args&&... args) {
        return &m_Records.emplace_back(std::forward<Args>(args)...);
    }

private:
    std::deque<Record> m_Records;
};

#endif
