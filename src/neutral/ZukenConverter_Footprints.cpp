#include "neutral/Keywords.h"
#include "neutral/OutlineFuncs.h"
#include "neutral/RecordBlock_T.h"
#include "neutral/ZukenConverter.h"

namespace {

void WritePin(const FootprintPin& pin, io::CBlock& block) {
    io::CBlock_open_func func(block, keyword::k_FpPin);
    func << pin.name;
    AppendPoint_G(pin.location, func);
    func << pin.padstack->name << pin.angle;
}

/// Each pin has a block of its own.
io::CBlock MakePinDef(const FootprintPin& pin) {
    io::CBlock pinDef(keyword::k_FpPinDef);
    WritePin(pin, pinDef);
    return pinDef;
}

} // namespace

bool ZukenConverter::WriteFootprints(const Footprints& footprints, io::CBlock& root) {
    root << MakeRecordBlock_T(keyword::k_Footprints, footprints, WriteFootprint);
    return true;
}

bool ZukenConverter::WriteFootprint(const Footprint& footprint, io::CBlock& block) {
    io::CBlockPtr pins(keyword::k_FpPins);
    for (const FootprintPin* pin : footprint.pins)
        if (pin->padstack != nullptr)
            *pins << MakePinDef(*pin);
    io::CBlock footprintBlock(footprint.name);
    footprintBlock << pins;
    block << footprintBlock;
    return true;
}
