#include "neutral/Keywords.h"
#include "neutral/OutlineFuncs.h"
#include "neutral/ZukenConverter.h"

namespace {

/// Each pin has a block of its own.
io::CBlock MakePinDef(const FootprintPin& pin) {
    io::CBlock_func func(keyword::k_FpPin);
    func << pin.name;
    AppendPoint_G(pin.location, func);
    func << pin.padstack->name << pin.angle;
    io::CBlock pinDef(keyword::k_FpPinDef);
    pinDef << func;
    return pinDef;
}

} // namespace

bool ZukenConverter::WriteFootprints(const Footprints& footprints, io::CBlock& root) {
    io::CBlockPtr block(keyword::k_Footprints);
    for (const Footprint* footprint : footprints)
        WriteFootprint(*footprint, *block);
    root << block;
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
