#include "zuken/PointItem.h"

#include "zuken/ListValues.h"

PointItem::PointItem(io::FuncView list, double scale) {
    double x = 0.0;
    double y = 0.0;
    list >> x >> y;
    point = geom::Point(x * scale, y * scale);
    for (io::FuncView detail : list.Funcs()) {
        if (!cornerRadius && detail.NameIs("tarc")) {
            cornerRadius = GetRealOf_G(detail, "r") * scale;
        } else if (!width && detail.NameIs("width")) {
            double value = 0.0;
            detail >> value;
            width = value * scale;
        }
    }
}
