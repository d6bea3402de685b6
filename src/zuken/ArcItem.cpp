#include "zuken/ArcItem.h"

#include "zuken/ListValues.h"

namespace {

/// (begin (pt 0 0 (width 12000)))
geom::Point ReadEnd(io::FuncView list, double scale, double& width) {
    const io::FuncView pt = list.Find("pt");
    width = GetRealOf_G(pt, "width") * scale;
    return ReadPoint_G(pt, scale);
}

} // namespace

ArcItem::ArcItem(io::FuncView list, double coordScale, double centerScale)
    : radius(GetRealOf_G(list, "r") * coordScale), unitScale(centerScale) {
    direction = io::EqualsNoCase_G(list.GetText(), "CW") ? geom::k_CW : geom::k_CCW;
    begin = ReadEnd(list.Find("begin"), coordScale, beginWidth);
    end = ReadEnd(list.Find("end"), coordScale, endWidth);
    list.Find("center") >> centerX >> centerY;
}

geom::Point ArcItem::GetCenter() const {
    return {double(begin.GetX()) + centerX * radius / unitScale, double(begin.GetY()) + centerY * radius / unitScale};
}
