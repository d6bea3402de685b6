#include "zuken/FootprintPinReader.h"

#include "blocks/FuncRange.h"
#include "model/PadRectangle.h"
#include "zuken/ListValues.h"
#include "zuken/PadStroke.h"

#include <array>
#include <charconv>
#include <memory>

namespace {

/// The number with six decimals.
std::string FormatFixed(double value) {
    std::array<char, 320> text{}; // the largest double has 309 digits ahead of the point
    const auto result = std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed, 6);
    return {text.begin(), result.ptr};
}

} // namespace

/// (pin 1 (pt -47500 0) (layout (layer (footLayer PAD_A) (fPad R50X55 ...))))
void ZukenPCBParser::FootprintPinReader::ReadPin(io::CBlock_func& pin) {
    m_Source = Source();
    m_Source.m_Name = ReadPinName_G(pin);
    m_Source.m_Location = GetPointOf_G(pin, m_Parser.coordScale);
    for (io::CBlock_func& item : GetChild_G(GetChild_G(pin, "layout"), "layer").Funcs())
        ReadItem(item);
}

/// `fpadstack` is the one keyword whose case matters: the format's established behaviour; kept as it is.
void ZukenPCBParser::FootprintPinReader::ReadItem(io::CBlock_func& item) {
    if (item.GetTree().GetName() == "fpadstack")
        ReadPadstackItem(item);
    else if (item.NameIs("footLayer"))
        item >> m_Source.m_LayerName;
    else if (item.NameIs("fPad"))
        ReadPadItem(item);
    else if (item.NameIs("line"))
        ReadLineItem(item);
}

/// A padstack without a hole that has pads on several layers makes no pin itself: the pads follow one by one, and fall
/// back on it.
///
///     (fpadstack (pt -270000 190500) (angle 180) (padstackGroup (padstack SO_R155X60)))
void ZukenPCBParser::FootprintPinReader::ReadPadstackItem(const io::CBlock_func& item) {
    m_Source.m_Angle = GetRealOf_G(item, "angle");
    GetChild_G(GetChild_G(item, "padstackGroup"), "padstack") >> m_Source.m_PadstackName;
    Padstack* padstack = m_Parser.FindPadstack(m_Source.m_PadstackName);
    if (padstack == nullptr || !padstack->IsMultiLayerWithoutHole())
        MakePin(padstack, GetPointOf_G(item, m_Parser.coordScale));
}

/// (fPad R50X55 (pt -47500 0) (angle 0))
void ZukenPCBParser::FootprintPinReader::ReadPadItem(io::CBlock_func& item) {
    AString padName;
    item >> padName;
    m_Source.m_Angle = GetRealOf_G(item, "angle");
    MakePinOfPad(padName, GetPointOf_G(item, m_Parser.coordScale));
}

/// The stroke becomes a pad that is named after its size. It stands where the pin does, not where it was drawn.
///
///     (line (geometry (line (penShape SQUARE) (vertex (pt -47500 -27500 (width 50000)) (pt -47500 27500)))))
void ZukenPCBParser::FootprintPinReader::ReadLineItem(const io::CBlock_func& item) {
    const io::CBlock_func line = GetChild_G(GetChild_G(item, "geometry"), "line");
    const PadStroke stroke = ReadPadStroke_G(line, m_Parser.coordScale);
    const AString padName(FormatFixed(stroke.m_Width) + 'X' + FormatFixed(stroke.m_Height));
    m_Parser.pads.Add(
        std::make_unique<PadRectangle>(stroke.m_Width, stroke.m_Height, 0.0, PadRectangle::k_Kind, padName));
    MakePinOfPad(padName, m_Source.m_Location);
}

/// Where the layer is unknown, the pin takes the last padstack of its source instead.
void ZukenPCBParser::FootprintPinReader::MakePinOfPad(const AString& padName, geom::Point location) {
    if (!m_Source.m_LayerName.empty())
        if (const Padstack* generated = m_Parser.GetGeneratedPadstack(padName, m_Source.m_LayerName))
            m_Source.m_PadstackName = generated->GetName();
    MakePin(m_Parser.FindPadstack(m_Source.m_PadstackName), location);
}

void ZukenPCBParser::FootprintPinReader::MakePin(Padstack* padstack, geom::Point location) {
    FootprintPin* const* first = m_FirstByName.Find(m_Source.m_Name);
    const bool isFurther = first != nullptr && m_UsedNames.Contains(m_Source.m_Name);
    FootprintPin* firstPin = isFurther ? *first : nullptr;
    const AString name = MakeUniqueName(m_UsedNames, m_Source.m_Name);
    FootprintPin* pin = m_Parser.footprintPins.Make(padstack, name, location, geom::k_Origin, m_Source.m_Angle);
    m_Pins.push_back(pin);
    m_FirstByName.TryAdd(name, pin);
    if (firstPin != nullptr)
        firstPin->siblingPins.push_back(pin);
}
