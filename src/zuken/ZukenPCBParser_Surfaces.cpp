#include "lib/math/geometry/Circle.h"
#include "model/ZukenPCBParser.h"
#include "zuken/ArcItem.h"
#include "zuken/ArcRing.h"
#include "zuken/ListValues.h"
#include "zuken/Placement.h"
#include "zuken/PointItem.h"

#include <map>
#include <optional>
#include <utility>

namespace {

/// A closed outline, of which points and arcs come in order.
class LoopBuilder {
public:
    bool IsEmpty() const { return m_IsEmpty; }

    /// Of several radii for the same corner the last one counts.
    void AddPoint(const PointItem& item) {
        if (item.cornerRadius)
            m_Rounds[{double(item.point.GetX()), double(item.point.GetY())}] = *item.cornerRadius;
        GoTo(item.point);
    }
    void AddArc(const ArcItem& arc) {
        GoTo(arc.begin);
        m_Pieces.push_back(arc.GetArc());
        m_Last = arc.end;
    }
    /// Goes back straight to the first point, also where that is the last one, and rounds the corners in the order of
    /// their coordinates.
    geom::Polygon Close() {
        m_Pieces.emplace_back(m_Last, m_First, geom::k_NullUnit);
        if (!m_Rounds.empty())
            RoundCorners();
        return geom::Polygon(m_Pieces, true);
    }

private:
    void GoTo(geom::Point point) {
        if (m_IsEmpty)
            m_First = point;
        else
            m_Pieces.emplace_back(m_Last, point, geom::k_NullUnit);
        m_IsEmpty = false;
        m_Last = point;
    }
    void RoundCorners() {
        ArcRing arcs(m_Pieces, m_Rounds.size());
        for (const auto& [corner, radius] : m_Rounds)
            ZukenPCBParser::RoundCorner(arcs, geom::Point(corner.first, corner.second), radius);
        m_Pieces = arcs.GetArcs();
    }

    std::vector<geom::Arc> m_Pieces;
    std::map<std::pair<double, double>, double> m_Rounds; ///< radius by corner
    geom::Point m_First;
    geom::Point m_Last;
    bool m_IsEmpty = true;
};

/// The circle that an arc stands for which begins where it ends, with its centre straight above, below, left or right
/// of there.
std::optional<geom::Circle> GetFullCircle(const ArcItem& arc) {
    if (!(arc.begin == arc.end) || (arc.centerX != 0.0 && arc.centerY != 0.0))
        return std::nullopt;
    geom::Vector toCenter(arc.centerX < 0.0 ? -arc.radius : arc.radius, 0.0);
    if (arc.centerX == 0.0)
        toCenter = geom::Vector(0.0, arc.centerY < 0.0 ? -arc.radius : arc.radius);
    return geom::Circle(arc.begin + toCenter, arc.radius);
}

} // namespace

/// Each `vertex` is a surface of its own, and an `openShape` is a void of the one ahead of it. The surface's own
/// `outlineWidth` isn't used.
///
///     (surface (outlineWidth 10000)
///       (vertex (pt 0 0) (pt 90000 0) (pt 90000 90000))
///       (openShape (outlineWidth 10000) (vertex ...)))
bool ZukenPCBParser::ReadSurface(
    io::FuncView block, Net* net, const AString& layerName, geom::Point origin, double angle, bool mirrored) {
    const geom::Transformation placement = GetPlacement_G(origin, angle, mirrored);
    Surface* current = nullptr;
    for (const io::FuncView item : block.Funcs()) {
        geom::Polygon polygon;
        if (item.NameIs("vertex")) {
            ReadLoop(item, polygon);
            current = surfaces.Make(net, layerName, polygon.GetTransformed(placement));
        } else if (item.NameIs("openShape")) {
            ReadLoop(item.Find("vertex"), polygon);
            const double width = GetRealOf_G(item, "outlineWidth") * coordScale;
            if (current != nullptr)
                current->AddVoid(polygon.GetTransformed(placement), width * 0.5);
        }
    }
    return true;
}

/// An outline that begins with a full circle is this circle; the rest of it is passed over.
///
///     (vertex (pt 2700000 1750000 (tarc (r 15000))) (arc CCW ...) (pt ...))
bool ZukenPCBParser::ReadLoop(io::FuncView block, geom::Polygon& polygon) const {
    LoopBuilder loop;
    for (const io::FuncView item : block.Funcs()) {
        if (item.NameIs("pt")) {
            loop.AddPoint(PointItem(item, coordScale));
        } else if (item.NameIs("arc")) {
            const ArcItem arc(item, coordScale, GetUnitScale());
            const std::optional<geom::Circle> circle = loop.IsEmpty() ? GetFullCircle(arc) : std::nullopt;
            if (circle) {
                polygon = geom::Polygon(*circle);
                return true;
            }
            loop.AddArc(arc);
        }
    }
    polygon = loop.Close();
    return true;
}
