#ifndef QRL_MODEL_FOOTPRINT_H
#define QRL_MODEL_FOOTPRINT_H

#include "blocks/AString.h"
#include "model/FootprintPin.h"
#include "model/NameIndex_T.h"

#include <cstdint>
#include <vector>

/// The pins that every component of one kind has. Made once its pins are complete; owns none of them.
class Footprint {
public:
    Footprint(AString footprintName, std::vector<FootprintPin*> footprintPins);
    Footprint(const Footprint&) = delete;
    Footprint& operator=(const Footprint&) = delete;
    ~Footprint() = default;

    AString GetName() const { return name; }
    /// Replaces `out` by the pins and returns their number.
    int GetPins(std::vector<FootprintPin*>& out) const;
    /// The first pin of that name, but for the case of the letters A to Z; null when there is none.
    FootprintPin* FindPin(const AString& pinName) const;
    /// The place of that pin in `pins`, by which nets refer to it; -1 when there is none.
    int32_t GetPinIndex(const AString& pinName) const;

    AString name;
    const std::vector<FootprintPin*> pins; ///< in the order in which they were made

private:
    NameIndex_T<int32_t> m_FirstByName;
};

#endif
