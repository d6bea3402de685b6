#include "neutral/Keywords.h"
#include "neutral/OutlineFuncs.h"
#include "neutral/ThermalVoids.h"
#include "neutral/ZukenConverter.h"

namespace {

/// name("type"): how a component or net stands in the netlist.
io::CBlock_func MakeEntry(const AString& name, const AString& text) {
    io::CBlock_func func(name);
    func << text;
    return func;
}

io::CBlock_func MakeTextProp(const char* word, const AString& text) {
    io::CBlock_func prop(keyword::k_TextProp);
    prop << word << text;
    return prop;
}

io::CBlock MakeProperties(const Component& component) {
    io::CBlock properties(keyword::k_Properties);
    if (!component.partNumber.empty())
        properties << MakeTextProp(keyword::k_PartNumber, component.partNumber);
    if (!component.value.empty())
        properties << MakeTextProp(keyword::k_Value, component.value);
    if (!component.active) {
        io::CBlock_func prop(keyword::k_CheckboxProp);
        prop << keyword::k_Activate << false;
        properties << prop;
    }
    return properties;
}

io::CBlock MakeCompInst(const Component& component) {
    io::CBlock block(keyword::k_CompInst);
    block << MakeEntry(component.name, component.id) << MakeProperties(component);
    return block;
}

io::CBlock MakeNet(const Net& net) {
    io::CBlock block(keyword::k_Net);
    block << MakeEntry(net.name, keyword::k_Signal);
    for (const AString& pinRef : net.pinRefs)
        block << io::CBlock_named_value(keyword::k_NetPin, pinRef);
    return block;
}

io::CBlock_func MakePinInst(const ComponentPin& pin) {
    io::CBlock_func func(keyword::k_FpPinInst);
    func << pin.name;
    AppendRemovedThermalVoids_G(pin.noConnectLayers, func);
    return func;
}

io::CBlock MakeLayoutComp(const Component& component) {
    io::CBlock_func inst(keyword::k_LayoutCompInst);
    inst << component.layerName << component.footprint->name << component.name;
    AppendPoint_G(component.location, inst);
    inst << component.angle << component.mirrored;
    io::CBlock block(keyword::k_LayoutComp);
    block << inst;
    for (const ComponentPin& pin : component.pins)
        if (!pin.noConnectLayers.empty())
            block << MakePinInst(pin);
    return block;
}

} // namespace

bool ZukenConverter::WriteLayoutCell(
    const Components& components, const Nets& nets, const Layers& layers, io::CBlock& layoutCell) {
    WriteNetlist(components, nets, layoutCell);
    io::CBlockPtr layout(keyword::k_Layout);
    WriteLayers(layers, *layout);
    WriteLayoutComponents(components, *layout);
    WriteLayoutNets(nets, *layout);
    layoutCell << layout;
    return true;
}

void ZukenConverter::WriteNetlist(const Components& components, const Nets& nets, io::CBlock& layoutCell) {
    io::CBlockPtr netlist(keyword::k_Netlist);
    for (const Component* component : components)
        *netlist << MakeCompInst(*component);
    for (const Net* net : nets)
        *netlist << MakeNet(*net);
    layoutCell << netlist;
}

bool ZukenConverter::WriteLayoutComponents(const Components& components, io::CBlock& layout) {
    io::CBlockPtr block(keyword::k_LayoutComponents);
    for (const Component* component : components)
        if (component->footprint != nullptr)
            *block << MakeLayoutComp(*component);
    layout << block;
    return true;
}
