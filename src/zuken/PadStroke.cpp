#include "zuken/PadStroke.h"

#include "blocks/FuncRange.h"
#include "zuken/ListValues.h"

#include <cmath>

namespace {

/// A stroke that rises by less is level.
constexpr double k_LevelTolerance = 1e-8;

/// The box of a stroke by `dx` and `dy`.
PadStroke BoxOfStroke(double dx, double dy, double penWidth) {
    if (std::abs(dy) < k_LevelTolerance)
        return {std::abs(dx), penWidth};
    return {penWidth, std::abs(dy)};
}

} // namespace

PadStroke ReadPadStroke_G(const io::CBlock_func& line, double scale) {
    geom::Point first;
    geom::Point last;
    double penWidth = 0.0;
    bool isFirst = true;
    for (io::CBlock_func& pt : GetChild_G(line, "vertex").Funcs()) {
        if (!pt.NameIs("pt"))
            continue;
        (isFirst ? first : last) = ReadPoint_G(pt, scale);
        if (isFirst)
            penWidth = GetRealOf_G(pt, "width") * scale;
        isFirst = false;
    }
    const geom::Vector stroke(first, last);
    return BoxOfStroke(double(stroke.GetX()), double(stroke.GetY()), penWidth);
}
