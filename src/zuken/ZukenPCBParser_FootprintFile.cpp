#include "blocks/FuncRange.h"
#include "model/ZukenPCBParser.h"
#include "zuken/ListValues.h"

#include <memory>

/// The lists are read as they are met, and each looks up what those before it made:
///
///     (ftf library
///       (header (unit DBUNIT))
///       (technologyContainer ...)
///       (footprintContainer ...))
bool ZukenPCBParser::ParseFootprintFile() {
    for (const io::CBlock_func& ftf : fpData.Funcs()) {
        if (!ftf.NameIs("ftf"))
            continue;
        for (const io::CBlock_func& section : ftf.Funcs()) {
            if (section.NameIs("header"))
                ReadUnits(section);
            else if (section.NameIs("technologyContainer"))
                ReadTechnology(section);
            else if (section.NameIs("footprintContainer"))
                ReadFootprintContainer(section);
        }
    }
    return true;
}

/// Layers that hold no copper get neither a record nor a number: nothing later knows of them.
///
///     (technologyContainer (technology std
///       (footprintLayer
///         (layer PAD_A (type CONDUCTIVE))
///         (layer RESIST_A (type RESIST)))))
bool ZukenPCBParser::ReadTechnology(const io::CBlock_func& technologyContainer) {
    io::CBlock_func technology("technology");
    io::CBlock_func footprintLayer("footprintLayer");
    if (!FindChild_G(technologyContainer, technology) || !FindChild_G(technology, footprintLayer))
        return false;
    int32_t number = 1;
    for (io::CBlock_func& layer : footprintLayer.Funcs()) {
        if (!layer.NameIs("layer") || GetTextOf_G(layer, "type").CompareNoCase("CONDUCTIVE") != 0)
            continue;
        AString name;
        layer >> name;
        footprintLayers.Add(std::make_unique<FPLayer>(name, number++, Layer::k_Conductive, 0.0));
    }
    return true;
}

/// (footprintContainer (pads ...) (padstacks ...) (footprints ...))
void ZukenPCBParser::ReadFootprintContainer(const io::CBlock_func& footprintContainer) {
    for (const io::CBlock_func& section : footprintContainer.Funcs()) {
        if (section.NameIs("pads"))
            ReadPads(section);
        else if (section.NameIs("Footprints"))
            ReadFootprints(section);
        else if (section.NameIs("padstacks"))
            ReadPadstacks(section);
    }
}
