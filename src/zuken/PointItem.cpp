#include "zuken/PointItem.h"

#include "zuken/ListValues.h"

PointItem::PointItem(io::FuncView list, double scale) : point(ReadPoint_G(list, scale)) {
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
