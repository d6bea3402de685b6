#ifndef QRL_BLOCKS_NUMBERMEMO_H
#define QRL_BLOCKS_NUMBERMEMO_H

#include "blocks/ValueText.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace io {

/// Remembers the texts of the doubles that were put last. Neighbours on a board share coordinates, and most lines one
/// of a few widths, so every other number needs no more than a copy.
class NumberMemo {
public:
    /// Puts what `PutDouble` does, and needs the same room.
    char* Put(char* to, double value) {
        const auto bits = std::bit_cast<uint64_t>(value);
        Entry& entry = m_Entries[(bits * k_Scramble) >> (64 - k_IndexBits)];
        if (entry.m_Bits != bits || entry.m_Size == 0) {
            entry.m_Bits = bits;
            entry.m_Size = PutDouble(entry.m_Text, value) - entry.m_Text;
        }
        std::memcpy(to, entry.m_Text, k_NumberRoom);
        return to + entry.m_Size;
    }

private:
    static constexpr int k_IndexBits = 8;
    static constexpr uint64_t k_Scramble = 0x9E3779B97F4A7C15; ///< 2^64 over the golden ratio spreads like numbers

    struct Entry {
        uint64_t m_Bits = 0;
        ptrdiff_t m_Size = 0; ///< 0: nothing is remembered here
        char m_Text[k_NumberRoom] = {};
    };

    std::array<Entry, size_t{1} << k_IndexBits> m_Entries = {};
};

} // namespace io

#endif
