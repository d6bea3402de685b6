#include "blocks/FuncRange.h"
#include "model/ZukenPCBParser.h"
#include "zuken/ComponentDraft.h"
#include "zuken/ListValues.h"

#include <memory>

namespace {

constexpr double k_FullTurn = 360.0; ///< degrees

/// Reads what says something of the component alone.
void ReadProperty(io::CBlock_func& item, double scale, ComponentDraft& draft) {
    if (item.NameIs("reference"))
        ReadName_G(item, draft.reference);
    else if (item.NameIs("part"))
        ReadAnyText_G(item, draft.part);
    else if (item.NameIs("footprint"))
        ReadName_G(item, draft.footprintName);
    else if (item.NameIs("placementSide"))
        item >> draft.side;
    else if (item.NameIs("location"))
        draft.location = GetPointOf_G(item, scale);
    else if (item.NameIs("angle"))
        item >> draft.angle;
    else if (item.NameIs("reverseFootprint"))
        item >> draft.reverseName;
}

} // namespace

/// A component that is dropped takes up a number too.
bool ZukenPCBParser::ReadComponents(const io::CBlock_func& section) {
    int count = 0;
    for (const io::CBlock_func& component : section.Funcs()) {
        if (!component.NameIs("Component"))
            continue;
        AString id;
        id.Format(L"Component_%d", ++count);
        ReadComponent(component, id);
    }
    return true;
}

/// Layout and pins see only what stands ahead of them:
///
///     (component (reference R1) (part R0603-014) (footprint R0603) (placementSide B)
///       (location (pt 1150000 2018000)) (angle 270) (reverseFootprint R0603_REV)
///       (layout ...)
///       (pin 1 ...) (pin 2 ...))
bool ZukenPCBParser::ReadComponent(const io::CBlock_func& func, const AString& id) {
    ComponentDraft draft;
    for (io::CBlock_func& item : func.Funcs()) {
        if (item.NameIs("layout"))
            ReadLayout(func, false, false, nullptr, draft.location, draft.angle, draft.IsOnBottom());
        else if (!item.NameIs("pin"))
            ReadProperty(item, coordScale, draft);
        else if (!ReadPin(item, draft))
            return false;
    }
    AddComponent(draft, id);
    return true;
}

/// A component on the bottom sits on the bottom layer and turns the other way. A reverse footprint is drawn as seen
/// from the top, so with one the component stays on the top layer.
void ZukenPCBParser::AddComponent(const ComponentDraft& draft, const AString& id) {
    const bool isMirrored = draft.IsOnBottom();
    const bool isReverse = isMirrored && FindFootprint(draft.reverseName) != nullptr;
    const Layer* layer = isMirrored && !isReverse ? GetBottomConductiveLayer() : GetTopConductiveLayer();
    const double angle = isMirrored ? k_FullTurn - draft.angle : draft.angle;
    const AString name = MakeComponentName(draft.reference);
    auto component = std::make_unique<Component>(name, FindFootprintInUse(draft), draft.location, angle, isMirrored);
    if (layer != nullptr)
        component->layerName = layer->name;
    component->id = id;
    component->partNumber = draft.part;
    component->pins = draft.pins;
    components.Add(std::move(component));
}

Footprint* ZukenPCBParser::FindFootprintInUse(const ComponentDraft& draft) const {
    Footprint* reverse = draft.IsOnBottom() ? FindFootprint(draft.reverseName) : nullptr;
    return reverse != nullptr ? reverse : FindFootprint(draft.footprintName);
}
