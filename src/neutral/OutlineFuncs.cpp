#include "neutral/OutlineFuncs.h"

#include "neutral/Keywords.h"

void AppendPoint_G(geom::Point point, io::CBlock_open_func& func) {
    func << static_cast<double>(point.GetX()) << static_cast<double>(point.GetY());
}

void AppendVertex_G(geom::Point point, const char* word, io::CBlock_open_func& func) {
    io::CBlock_open_func vertex(func, word);
    AppendPoint_G(point, vertex);
}

void AppendArc_G(double height, io::CBlock_open_func& func) {
    io::CBlock_open_func arc(func, keyword::k_Arc);
    arc << height;
}

void AppendPieces_G(const std::vector<geom::Arc>& pieces, const char* word, io::CBlock_open_func& func) {
    for (const geom::Arc& piece : pieces) {
        AppendVertex_G(piece.GetStart(), word, func);
        if (!piece.IsSegment(piece.GetEpsilon()))
            AppendArc_G(static_cast<double>(piece.GetHeight()), func);
    }
}
