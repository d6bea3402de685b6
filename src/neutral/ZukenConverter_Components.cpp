#include "neutral/Keywords.h"
#include "neutral/ZukenConverter.h"

namespace {

/// The empty texts and the 1 have no source in the board. The letter is what designators of this kind of part begin
/// with: R for R12.
io::CBlock_func MakeCompDef(const Component& component) {
    io::CBlock_func func(keyword::k_CompDef);
    func << "" << component.footprint->name << "" << component.name.Left(1) << 1;
    return func;
}

io::CBlock_func MakeTerminal(const AString& pinName) {
    io::CBlock_func func(keyword::k_Terminal);
    func << pinName << pinName << "A" << false;
    return func;
}

} // namespace

/// Each placed part is a definition of its own, also where parts are identical.
bool ZukenConverter::WriteComponents(const Components& components, io::CBlock& root) {
    io::CBlockPtr block(keyword::k_Components);
    for (const Component* component : components)
        WriteComponentDef(*component, *block);
    root << block;
    return true;
}

bool ZukenConverter::WriteComponentDef(const Component& component, io::CBlock& block) {
    if (component.footprint == nullptr)
        return false;
    io::CBlock definition(component.id);
    definition << MakeCompDef(component);
    for (const FootprintPin* pin : component.footprint->pins)
        definition << MakeTerminal(pin->name);
    block << definition;
    return true;
}
