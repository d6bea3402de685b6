#ifndef QRL_NEUTRAL_KEYWORDS_H
#define QRL_NEUTRAL_KEYWORDS_H

#include "blocks/Keyword.h"

#include <array>
#include <string_view>

/// The vocabulary of the neutral file. Case matters.
namespace keyword {

inline constexpr char k_QuorelNeutralFile[] = "QuorelNeutralFile";
inline constexpr char k_Version[] = "Version";
inline constexpr char k_Source[] = "Source";
inline constexpr char k_DefaultUnits[] = "DefaultUnits";

inline constexpr char k_PadShapes[] = "PadShapes";
inline constexpr char k_NullPad[] = "NULLPAD";
inline constexpr char k_Circle[] = "Circle";
inline constexpr char k_Rectangle[] = "Rectangle";
inline constexpr char k_Obround[] = "Obround";
inline constexpr char k_Polygon[] = "Polygon";
inline constexpr char k_Vertex[] = "Vertex";        ///< of a pad's polygon and of a path
inline constexpr char k_OutlineVertex[] = "vertex"; ///< of a polygon in the layout of a net
inline constexpr char k_Arc[] = "Arc";

inline constexpr char k_Padstacks[] = "Padstacks";
inline constexpr char k_Hole[] = "Hole";
inline constexpr char k_Wirebond[] = "Wirebond"; ///< a padstack's entry on a bond wire layer
inline constexpr char k_Thermal[] = "Thermal";
inline constexpr char k_Nonconnect[] = "Nonconnect";

inline constexpr char k_Footprints[] = "Footprints";
inline constexpr char k_FpPins[] = "FpPins";
inline constexpr char k_FpPinDef[] = "FpPinDef";
inline constexpr char k_FpPin[] = "FpPin";

inline constexpr char k_Components[] = "Components";
inline constexpr char k_CompDef[] = "CompDef";
inline constexpr char k_Terminal[] = "Terminal";

inline constexpr char k_LayoutData[] = "LayoutData";
inline constexpr char k_LayoutCell[] = "LayoutCell";
inline constexpr char k_Netlist[] = "Netlist";
inline constexpr char k_Layout[] = "Layout";
inline constexpr char k_Design[] = "Design";
inline constexpr char k_TopLayout[] = "TopLayout";
inline constexpr char k_Name[] = "Name";

inline constexpr char k_CompInst[] = "CompInst";
inline constexpr char k_Properties[] = "Properties";
inline constexpr char k_TextProp[] = "TextProp";
inline constexpr char k_CheckboxProp[] = "CheckboxProp";
inline constexpr char k_PartNumber[] = "PART_NUMBER";
inline constexpr char k_Value[] = "Value";
inline constexpr char k_Activate[] = "ACTIVATE";
inline constexpr char k_Net[] = "Net";
inline constexpr char k_NetPin[] = "NetPin";

inline constexpr char k_LayoutComponents[] = "LayoutComponents";
inline constexpr char k_LayoutComp[] = "LayoutComp";
inline constexpr char k_LayoutCompInst[] = "LayoutCompInst";
inline constexpr char k_FpPinInst[] = "fpPinInst";
inline constexpr char k_RemoveThermalVoids[] = "RemoveThermalVoids";

inline constexpr char k_LayoutNets[] = "LayoutNets";
inline constexpr char k_LayoutNet[] = "LayoutNet";
inline constexpr char k_Via[] = "Via";
inline constexpr char k_Graphics[] = "Graphics";
inline constexpr char k_Path[] = "Path";
inline constexpr io::Keyword k_Round("Round");
inline constexpr io::Keyword k_RadiallyMitered("Radiallymitered");
inline constexpr char k_PolygonWithVoids[] = "PolygonWithVoids";
inline constexpr char k_Layer[] = "Layer";
inline constexpr char k_Voids[] = "voids";

inline constexpr char k_Layers[] = "Layers";
inline constexpr char k_StackupLayer[] = "StackupLayer";
inline constexpr char k_Signal[] = "Signal";
inline constexpr char k_MetalizedSignal[] = "MetalizedSignal";
inline constexpr char k_Bondwire[] = "wirebond"; ///< a bond wire layer of the stackup
inline constexpr char k_Dielectric[] = "Dielectric";
inline constexpr char k_Top[] = "Top";
inline constexpr char k_Bottom[] = "Bottom";
inline constexpr char k_Neither[] = "Neither";
inline constexpr char k_Copper[] = "Copper";
inline constexpr char k_FR4[] = "FR4";

/// Words that belong to the format and that this program doesn't write as a keyword. A new section must not give them
/// another meaning.
inline constexpr auto k_Reserved = std::to_array<std::string_view>({
    "FIDUCIAL",
    "QRELSMALLPAD",
    "neither",
    "4_WEB_SQUARE_THERMAL_90",
    "4_WEB_SQUARE_THERMAL_45",
    "4_WEB_ROUND_THERMAL_90",
    "4_WEB_ROUND_THERMAL_45",
    "FpPindef",
    "SolderMask",
    "NonConnect",
    "Square",
    "Sq90",
    "Sq45",
    "Rnd90",
    "Rnd45",
    "Symbols",
    "Board",
    "ASSEMBLY_TOP",
    "ASSEMBLY_BOTTOM",
    "SOLDERPASTE_TOP",
    "SOLDERPASTE_BOTTOM",
    "SOLDERMASK_TOP",
    "SOLDERMASK_BOTTOM",
    "SILKSCREEN_TOP",
    "SILKSCREEN_BOTTOM",
    "PLACEMENT_TOP",
    "PLACEMENT_BOTTOM",
    "Oblong",
    "Text",
    "OPP_SIDE",
    "Parasitic_Resistance",
    "Parasitic_Capacitance",
    "Parasitic_Inductance",
    "Placement",
    "Bullet",
    "Trace",
    "Compinst",
    "Right",
    "Left",
    "Center",
    "Assembly",
    "PIN_SMD",
    "PIN_THROUGH",
    "MOUNTING_HOLE",
    "PadStacks",
    "Cut",
    "SchematicData",
    "Date",
    "mm",
    "CellName",
    "PhysicalDimensions",
    "Template",
    "SilkScreen",
    "LayoutPorts",
    "_XMirrored",
    "Instances",
    "Pin",
    "Materials",
    "POSITIVE",
    "Power",
    "FpGraphics",
    "Unknown",
    "copper",
    "User",
    "SolderPaste",
});

} // namespace keyword

#endif
