#include "neutral/Keywords.h"
#include "neutral/OutlineFuncs.h"
#include "neutral/RecordBlock_T.h"
#include "neutral/ThermalVoids.h"
#include "neutral/ZukenConverter.h"

#include <string_view>

namespace {

/// name("type"): how a component or net stands in the netlist.
void WriteEntry(const AString& name, std::string_view text, io::CBlock& block) {
    io::CBlock_open_func func(block, name);
    func << text;
}

void WriteTextProp(const char* word, const AString& text, io::CBlock& block) {
    io::CBlock_open_func prop(block, keyword::k_TextProp);
    prop << word << text;
}

io::CBlock MakeProperties(const Component& component) {
    io::CBlock properties(keyword::k_Properties);
    if (!component.partNumber.empty())
        WriteTextProp(keyword::k_PartNumber, component.partNumber, properties);
    if (!component.value.empty())
        WriteTextProp(keyword::k_Value, component.value, properties);
    if (!component.active) {
        io::CBlock_open_func prop(properties, keyword::k_CheckboxProp);
        prop << keyword::k_Activate << false;
    }
    return properties;
}

io::CBlock MakeCompInst(const Component& component) {
    io::CBlock block(keyword::k_CompInst);
    WriteEntry(component.name, component.id.GetNarrow(), block);
    block << MakeProperties(component);
    return block;
}

io::CBlock MakeNet(const Net& net) {
    io::CBlock block(keyword::k_Net);
    WriteEntry(net.name, keyword::k_Signal, block);
    for (const AString& pinRef : net.pinRefs)
        block << io::CBlock_named_value(keyword::k_NetPin, pinRef);
    return block;
}

void WritePinInst(const ComponentPin& pin, io::CBlock& block) {
    io::CBlock_open_func func(block, keyword::k_FpPinInst);
    func << pin.name;
    AppendRemovedThermalVoids_G(pin.noConnectLayers, func);
}

void WriteCompInst(const Component& component, io::CBlock& block) {
    io::CBlock_open_func inst(block, keyword::k_LayoutCompInst);
    inst << component.layerName << component.footprint->name << component.name;
    AppendPoint_G(component.location, inst);
    inst << component.angle << component.mirrored;
}

io::CBlock MakeLayoutComp(const Component& component) {
    io::CBlock block(keyword::k_LayoutComp);
    WriteCompInst(component, block);
    for (const ComponentPin& pin : component.pins)
        if (!pin.noConnectLayers.empty())
            WritePinInst(pin, block);
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
    const auto write = [components, nets](size_t index, io::CBlock& items) {
        if (index < components.size())
            items << MakeCompInst(*components[index]);
        else
            items << MakeNet(*nets[index - components.size()]);
    };
    const size_t count = components.size() + nets.size();
    layoutCell << io::CBlockDeferredPtr(new io::CBlock_deferred(keyword::k_Netlist, count, write));
}

bool ZukenConverter::WriteLayoutComponents(const Components& components, io::CBlock& layout) {
    const auto write = [](const Component& component, io::CBlock& items) {
        if (component.footprint != nullptr)
            items << MakeLayoutComp(component);
    };
    layout << MakeRecordBlock_T(keyword::k_LayoutComponents, components, write);
    return true;
}
