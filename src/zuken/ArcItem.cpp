#include "zuken/ArcItem.h"

#include "zuken/ListValues.h"

namespace {

/// (begin (pt 0 0 (width 12000)))
geom::Point ReadEnd(const io::CBlock_func& list, double scale, double& width) {
    io::CBlock_func pt = GetChild_G(list, "pt");
    width = GetRealOf_G(pt, "width") * scale;
    return ReadPoint_G(pt, scale);
}

} // namespace

ArcItem::ArcItem(io::CBlock_func& list, double coordScale, double centerScale)
    : radius(GetRealOf_G(list, "r") * coordScale), unitScale(centerScale) {
    AString text;
    list >> text;
    direction = text.CompareNoCase("CW") == 0 ? geom::k_CW : geom::k_CCW;
    begin = ReadEnd(GetChild_G(list, "begin"), coordScale, beginWidth);
    end = ReadEnd(GetChild_G(list, "end"), coordScale, endWidth);
    io::CBlock_func center = GetChild_G(list, "center");
    center >> centerX >> centerY;
}

geom::Point ArcItem::GetCenter() const {
    return {double(begin.GetX()) + centerX * radius / unitScale, double(begin.GetY()) + centerY * radius / unitScale};
}
