#include "model/ZukenPCBParser.h"
#include "zuken/ArcItem.h"
#include "zuken/LineBuilder.h"
#include "zuken/ListValues.h"
#include "zuken/PointItem.h"

namespace {

/// A point without a width keeps the one that runs.
void AddTo(LineBuilder& line, const PointItem& item) {
    if (item.cornerRadius)
        line.AddCornerRound(item.point, *item.cornerRadius);
    line.AddPoint(item.point, item.width.value_or(line.GetWidth()));
}

} // namespace

/// (line (penShape CIRCLE) (vertex (pt 4343068 9525000 (width 15000)) (pt 4643068 9825000) (arc ...)))
bool ZukenPCBParser::ReadLine(io::FuncView block, Net* net, const AString& layerName) {
    LineBuilder line(traces, layerName, net);
    for (const io::FuncView item : block.Find("vertex").Funcs()) {
        if (item.NameIs("pt"))
            AddTo(line, PointItem(item, coordScale));
        else if (item.NameIs("arc"))
            line.AddArc(ArcItem(item, coordScale, GetUnitScale()));
    }
    line.Finish();
    return true;
}
