#include "blocks/CBlock_open_func.h"
#include "neutral/Keywords.h"
#include "neutral/RecordBlock_T.h"
#include "neutral/ZukenConverter.h"

namespace {

/// The empty texts and the 1 have no source in the board. The letter is what designators of this kind of part begin
/// with: R for R12.
void WriteCompDef(const Component& component, io::CBlock& block) {
    io::CBlock_open_func func(block, keyword::k_CompDef);
    func << "" << component.footprint->name << "" << component.name.Left(1) << 1;
}

void WriteTerminal(const AString& pinName, io::CBlock& block) {
    io::CBlock_open_func func(block, keyword::k_Terminal);
    func << pinName << pinName << "A" << false;
}

} // namespace

/// Each placed part is a definition of its own, also where parts are identical.
bool ZukenConverter::WriteComponents(const Components& components, io::CBlock& root) {
    root << MakeRecordBlock_T(keyword::k_Components, components, WriteComponentDef);
    return true;
}

bool ZukenConverter::WriteComponentDef(const Component& component, io::CBlock& block) {
    if (component.footprint == nullptr)
        return false;
    io::CBlock definition(component.id);
    WriteCompDef(component, definition);
    for (const FootprintPin* pin : component.footprint->pins)
        WriteTerminal(pin->name, definition);
    block << definition;
    return true;
}
