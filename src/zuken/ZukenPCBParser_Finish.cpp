#include "lib/utils/Assert.h"
#include "model/ZukenPCBParser.h"

namespace {

/// How much larger than what it holds the board is taken to be.
constexpr double k_BoardMargin = 1.1;

} // namespace

/// The board is measured ahead of the planes, which are as large as it is.
void ZukenPCBParser::FinishBoard() {
    ComputeBoardBox();
    const geom::Polygon outline(boardBox, geom::k_NullUnit);
    for (const Layer* layer : conductiveLayers)
        if (!layer->signalName.empty())
            surfaces.Make(GetNet(layer->signalName), layer->name, outline);
}

void ZukenPCBParser::ComputeBoardBox() {
    for (const Net* net : nets)
        boardBox.Extend(net->ComputeBox());
    QRL_ASSERT("Range_T", "!IsEmpty()", !boardBox.IsEmpty());
    if (boardBox.IsEmpty())
        return;
    boardBox = geom::Box(boardBox.GetCenter(), boardBox.GetXRange().GetSize() * k_BoardMargin,
        boardBox.GetYRange().GetSize() * k_BoardMargin);
}
