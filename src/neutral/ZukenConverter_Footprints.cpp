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

/// The pins of a footprint are made one by one: a connector of many thousands never stands in memory as a whole.
bool ZukenConverter::WriteFootprint(const Footprint& footprint, io::CBlock& block) {
    const auto write = [&footprint](size_t index, io::CBlock& items) {
        const FootprintPin& pin = *footprint.pins[index];
        if (pin.padstack != nullptr)
            items << MakePinDef(pin);
    };
    io::CBlock footprintBlock(footprint.name);
    footprintBlock << io::CBlockDeferredPtr(new io::CBlock_deferred(keyword::k_FpPins, footprint.pins.size(), write));
    block << footprintBlock;
    return true;
}
