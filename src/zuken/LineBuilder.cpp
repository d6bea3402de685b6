#include "zuken/LineBuilder.h"

#include "model/ZukenPCBParser.h"

#include <cmath>

namespace {

/// Widths that differ by no more are the same, and a line as thin as this has no width to change.
constexpr double k_WidthTolerance = 1e-10;

} // namespace

void LineBuilder::AddCornerRound(geom::Point corner, double radius) {
    m_Rounds.push_back({double(corner.GetX()), double(corner.GetY()), radius});
}

void LineBuilder::AddPoint(geom::Point point, double width) {
    if (IsCutBy(width)) {
        AddVertex(point, 0.0, m_Width);
        RoundCorners();
        CloseTrace();
    }
    m_Width = width;
    AddVertex(point, 0.0, width);
}

void LineBuilder::AddArc(const ArcItem& arc) {
    const auto height = double(arc.GetArc().GetHeight());
    AddVertex(arc.begin, height, arc.beginWidth);
    if (IsCutBy(arc.beginWidth)) {
        AddVertex(arc.begin, height, m_Width);
        CloseTrace();
    }
    m_Width = arc.endWidth;
    AddVertex(arc.end, 0.0, arc.endWidth);
}

void LineBuilder::Finish() {
    RoundCorners();
    CloseTrace();
}

bool LineBuilder::IsCutBy(double width) const {
    return m_Width > k_WidthTolerance && std::abs(width - m_Width) > k_WidthTolerance;
}

void LineBuilder::AddVertex(geom::Point point, double height, double width) {
    m_Vertices.push_back({.x = double(point.GetX()),
        .y = double(point.GetY()),
        .height = height,
        .startWidth = width,
        .endWidth = width});
}

void LineBuilder::CloseTrace() {
    m_Traces.Make(m_Vertices, m_LayerName, m_Net);
    m_Vertices.clear();
}

void LineBuilder::RoundCorners() {
    if (m_Rounds.empty())
        return;
    ZukenPCBParser::ApplyCornerRounds(m_Vertices, m_Rounds, m_Width);
    m_Rounds.clear();
}
