#include "zuken/PointItem.h"

#include "blocks/FuncRange.h"
#include "zuken/ListValues.h"

PointItem::PointItem(io::CBlock_func& list, double scale) : point(ReadPoint_G(list, scale)) {
    for (io::CBlock_func& detail : list.Funcs()) {
        if (!cornerRadius && detail.NameIs("tarc")) {
            cornerRadius = GetRealOf_G(detail, "r") * scale;
        } else if (!width && detail.NameIs("width")) {
            double value = 0.0;
            detail >> value;
            width = value * scale;
        }
    }
}
