#include "blocks/FuncRange.h"
#include "model/ZukenPCBParser.h"
#include "zuken/ListValues.h"

namespace {

AString GetPinRef(const Component& component, const AString& reference, const FootprintPin& pin) {
    AString text;
    text.Format(L"%s.%d", reference, component.footprint->GetPinIndex(pin.name));
    return text;
}

} // namespace

/// (nets (net GND ...) (net N1 ...))
bool ZukenPCBParser::ReadNets(const io::CBlock_func& section) {
    for (io::CBlock_func& net : section.Funcs())
        if (net.NameIs("net"))
            ReadNet(net);
    return true;
}

/// (net GND (comp U1 (pin 3)) (comp R4 (pin 1)))
bool ZukenPCBParser::ReadNet(io::CBlock_func& func) {
    AString name;
    func >> name;
    Net* net = GetNet(name);
    for (io::CBlock_func& comp : func.Funcs())
        if (comp.NameIs("comp"))
            ReadNetPin(comp, net);
    return true;
}

/// A pin that isn't known is lost without a word. One whose pad has several outlines, for which the neutral file's
/// padstacks have no form, is drawn as copper of the net where the component stands, turned or not, and isn't noted.
/// Pins that were made from the same source pin are connected in both cases.
///
///     (comp U1 (pin 3))
void ZukenPCBParser::ReadNetPin(io::CBlock_func& comp, Net* net) {
    AString reference;
    comp >> reference;
    reference = GetComponentName(reference);
    const Component* component = FindComponent(reference);
    if (component == nullptr || component->footprint == nullptr)
        return;
    io::CBlock_func pinList = GetChild_G(comp, "pin");
    const FootprintPin* pin = component->footprint->FindPin(ReadPinName_G(pinList));
    if (pin == nullptr)
        return;
    if (pin->padstack != nullptr && pin->padstack->HasMultiLoopPad()) {
        const geom::Transformation placement(geom::Vector(pin->location) + geom::Vector(component->location));
        AddPadstackSurfaces(net, pin->padstack, placement, false);
    } else {
        net->AddPinRef(GetPinRef(*component, reference, *pin));
    }
    for (const FootprintPin* sibling : pin->siblingPins)
        net->AddPinRef(GetPinRef(*component, reference, *sibling));
}
