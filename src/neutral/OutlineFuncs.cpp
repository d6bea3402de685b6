#include "neutral/OutlineFuncs.h"

#include "neutral/Keywords.h"

void AppendPoint_G(geom::Point point, io::CBlock_func& func) {
    func << static_cast<double>(point.GetX()) << static_cast<double>(point.GetY());
}

void AppendVertex_G(geom::Point point, const char* word, io::CBlock_func& func) {
    io::CBlock_func vertex(word);
    AppendPoint_G(point, vertex);
    func << vertex;
}

void AppendArc_G(double height, io::CBlock_func& func) {
    io::CBlock_func arc(keyword::k_Arc);
    arc << height;
    func << arc;
}

void AppendPieces_G(const std::vector<geom::Arc>& pieces, const char* word, io::CBlock_func& func) {
    for (const geom::Arc& piece : pieces) {
        AppendVertex_G(piece.GetStart(), word, func);
        if (!piece.IsSegment(piece.GetEpsilon()))
            AppendArc_G(static_cast<double>(piece.GetHeight()), func);
    }
}
