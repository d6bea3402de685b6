#ifndef QRL_NEUTRAL_RECORDBLOCK_T_H
#define QRL_NEUTRAL_RECORDBLOCK_T_H

#include "blocks/CBlock.h"

#include <vector>

/// The block `name` of what `writeRecord(record, items)` appends for each of `records`, which must outlive the writing
/// of the block.
template <class Record, class WriteRecord>
io::CBlockDeferredPtr MakeRecordBlock_T(
    const char* name, const std::vector<Record*>& records, const WriteRecord& writeRecord) {
    const auto make = [records, writeRecord](size_t index, io::CBlock& items) { writeRecord(*records[index], items); };
    return io::CBlockDeferredPtr(new io::CBlock_deferred(name, records.size(), make));
}

#endif
