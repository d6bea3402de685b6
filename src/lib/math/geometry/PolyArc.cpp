#include "lib/math/geometry/PolyArc.h"

#include "lib/math/geometry/CircleSlice.h"
#include "lib/math/geometry/Circumference.h"
#include "lib/math/geometry/Rotation.h"
#include "lib/math/geometry/Transformation.h"
#include "lib/math/geometry/Triangle.h"
#include "lib/utils/Assert.h"

#include <algorithm>

namespace geom {

namespace {

std::vector<Arc> ToArcs(OpenClosed open_closed, const std::vector<Point>& vertices) {
    QRL_ASSERT("PolyArc", "vertices.size() > 0", !vertices.empty());
    std::vector<Arc> arcs;
    for (std::size_t i = 1; i < vertices.size(); ++i)
        arcs.emplace_back(Segment(vertices[i - 1], vertices[i]));
    const bool isOpenLoop = open_closed == k_Closed && !vertices.empty() && vertices.back() != vertices.front();
    if (isOpenLoop || vertices.size() == 1)
        arcs.emplace_back(Segment(vertices.back(), vertices.front()));
    return arcs;
}

std::vector<Arc> ToArcs(const std::vector<Segment>& segments) {
    std::vector<Arc> arcs;
    for (const Segment& segment : segments)
        arcs.emplace_back(segment);
    return arcs;
}

std::vector<Arc> ToArcs(OpenClosed open_closed, const Arc& arc) {
    if (open_closed == k_Closed && arc.GetStart() != arc.GetEnd())
        return {arc, arc.GetReversed()};
    return {arc};
}

std::vector<Arc> ToArcs(const Circumference& circumference, Direction cw_ccw, Azimuth azimuth) {
    if (circumference.IsPoint(k_NullUnit))
        return {Arc(Segment(circumference.GetCenter(), circumference.GetCenter()))};
    return {Arc(circumference, azimuth, cw_ccw)};
}

template <class Change>
std::vector<Arc> GetChanged(std::vector<Arc> arcs, const Change& change) {
    std::transform(arcs.begin(), arcs.end(), arcs.begin(), change);
    return arcs;
}

} // namespace

PolyArc::PolyArc(OpenClosed open_closed) : PolyArc(open_closed, std::vector<Arc>()) {}

PolyArc::PolyArc(OpenClosed open_closed, const std::vector<Arc>& arcs)
    : m_ImplRefCounter(new Implementation(open_closed, arcs)) {}

PolyArc::PolyArc(OpenClosed open_closed, const std::vector<Point>& vertices)
    : PolyArc(open_closed, ToArcs(open_closed, vertices)) {}

PolyArc::PolyArc(OpenClosed open_closed, const std::vector<Segment>& segments)
    : PolyArc(open_closed, ToArcs(segments)) {}

PolyArc::PolyArc(OpenClosed open_closed, const Arc& arc) : PolyArc(open_closed, ToArcs(open_closed, arc)) {}

PolyArc::PolyArc(OpenClosed open_closed, const Segment& segment) : PolyArc(open_closed, Arc(segment)) {}

PolyArc::PolyArc(OpenClosed open_closed, Point point) : PolyArc(open_closed, Segment(point, point)) {}

PolyArc::PolyArc(const Circumference& circumference, Direction cw_ccw, Azimuth azimuth)
    : PolyArc(k_Closed, ToArcs(circumference, cw_ccw, azimuth)) {}

OpenClosed PolyArc::GetOpenClosed() const {
    QRL_ASSERT("PolyArc", "!m_ImplRefCounter.IsNull()", !m_ImplRefCounter.IsNull());
    return m_ImplRefCounter.IsNull() ? k_Open : m_ImplRefCounter->GetOpenClosed();
}

std::uint32_t PolyArc::GetArcCount() const {
    return m_ImplRefCounter.IsNull() ? 0 : m_ImplRefCounter->GetArcs().GetSize();
}

std::vector<Arc> PolyArc::GetArcs() const {
    std::vector<Arc> arcs;
    if (empty())
        return arcs;
    arcs.reserve(GetArcCount());
    const Implementation::ArcTree& tree = m_ImplRefCounter->GetArcs();
    for (auto arc = tree.begin(); arc != tree.end(); ++arc)
        arcs.push_back(*arc);
    return arcs;
}

Box PolyArc::GetBox() const { return empty() ? k_EmptyBox : m_ImplRefCounter->GetArcs().GetBound(); }

Point PolyArc::GetStart() const {
    QRL_ASSERT("PolyArc", "!empty()", !empty());
    return empty() ? k_Origin : m_ImplRefCounter->GetFirst().GetStart();
}

Point PolyArc::GetEnd() const {
    QRL_ASSERT("PolyArc", "!empty()", !empty());
    return empty() ? k_Origin : m_ImplRefCounter->GetLast().GetEnd();
}

/// The triangles from the start to each chord add up to the polygon of the chords; each curved arc adds its slice.
Area PolyArc::GetArea() const {
    QRL_ASSERT("PolyArc", "GetOpenClosed() == k_Closed", GetOpenClosed() == k_Closed);
    Area area = k_Area_0;
    if (empty())
        return area;
    const Point start = GetStart();
    for (const Arc& arc : GetArcs()) {
        if (!arc.IsSegment(k_NullUnit))
            area += CircleSlice(arc).GetArea();
        area += Triangle(start, arc.GetStart(), arc.GetEnd()).GetSignedArea();
    }
    return area;
}

bool PolyArc::IsCircle(Unit accuracy, Circumference* circumference) const {
    if (empty())
        return false;
    if (GetArcCount() == 1)
        return begin()->IsCircle(circumference);
    if (GetOpenClosed() == k_Open && !GetStart().IsEqualTo(GetEnd(), accuracy))
        return false;
    return IsCircleOfSeveral(accuracy, circumference);
}

bool PolyArc::IsCircleOfSeveral(Unit accuracy, Circumference* circumference) const {
    const std::vector<Arc> arcs = GetArcs();
    if (arcs.front().GetHeight() == k_NullUnit)
        return false;
    const Circumference first = arcs.front().GetCircumference();
    const bool isFirstCCW = arcs.front().IsCCW();
    const auto liesOnFirst = [&](const Arc& arc) {
        if (arc.GetHeight() == k_NullUnit || arc.IsCCW() != isFirstCCW)
            return false;
        const Circumference own = arc.GetCircumference();
        return own.GetCenter().IsEqualTo(first.GetCenter(), accuracy) &&
               (own.GetRadius() - first.GetRadius()).GetAbs() <= accuracy;
    };
    if (!std::all_of(arcs.begin() + 1, arcs.end(), liesOnFirst))
        return false;
    if (circumference)
        *circumference = first;
    return true;
}

bool PolyArc::operator==(const PolyArc& other) const {
    if (m_ImplRefCounter.IsNull() || other.m_ImplRefCounter.IsNull())
        return m_ImplRefCounter.IsNull() && other.m_ImplRefCounter.IsNull();
    const Implementation& own = *m_ImplRefCounter;
    const Implementation& others = *other.m_ImplRefCounter;
    return &own == &others || own.GetArcs() == others.GetArcs();
}

PolyArc PolyArc::GetReversed() const {
    if (empty())
        return *this;
    std::vector<Arc> arcs = GetChanged(GetArcs(), [](const Arc& arc) { return arc.GetReversed(); });
    std::reverse(arcs.begin(), arcs.end());
    return {GetOpenClosed(), arcs};
}

PolyArc PolyArc::GetTransformed(const Transformation& transformation) const {
    if (empty() || transformation.IsIdentity())
        return *this;
    const auto transform = [&](const Arc& arc) { return arc.GetTransformed(transformation); };
    const PolyArc transformed(GetOpenClosed(), GetChanged(GetArcs(), transform));
    return transformation.IsMirroring() ? transformed.GetReversed() : transformed;
}

PolyArc PolyArc::GetRotated(const Rotation& rotation) const {
    if (empty() || rotation.GetAngle() == k_Angle_0)
        return *this;
    return {GetOpenClosed(), GetChanged(GetArcs(), [&](const Arc& arc) { return arc.GetRotated(rotation); })};
}

PolyArc::Iterator PolyArc::begin(base::FilterMode filter_mode, const Box& box) const {
    if (m_ImplRefCounter.IsNull())
        return end();
    const Implementation::ArcTree& arcs = m_ImplRefCounter->GetArcs();
    return Iterator(base::RefCounter_T<IterationState>(new IterationState(this, arcs, filter_mode, box)));
}

PolyArc::Iterator PolyArc::begin() const { return begin(base::k_NoFilter, k_UniverseBox); }

/// A copy shares the end of the chain that it was made from. It is taken for its own only while it names this chain as
/// the one it walks, which the other may no longer be.
PolyArc::Iterator PolyArc::end() const {
    const IterationState fresh(m_ImplRefCounter.IsNull() ? nullptr : this);
    const bool isOwn = !m_EndIterator.IsNull() && *m_EndIterator == fresh &&
                       std::as_const(m_EndIterator)->GetOwner() == fresh.GetOwner();
    if (!isOwn)
        m_EndIterator = base::RefCounter_T<IterationState>(new IterationState(fresh));
    return Iterator(m_EndIterator);
}

const Arc& PolyArc::Iterator::operator*() const {
    QRL_ASSERT("PolyArc", "!m_ImplRefCounter.IsNull()", !m_ImplRefCounter.IsNull());
    static const Arc k_Nothing;
    if (m_ImplRefCounter.IsNull())
        return k_Nothing;
    QRL_ASSERT("PolyArc", "IsDereferenceable()", m_ImplRefCounter->IsDereferenceable());
    return m_ImplRefCounter->GetArc();
}

PolyArc::Iterator& PolyArc::Iterator::operator++() {
    QRL_ASSERT("PolyArc", "!m_ImplRefCounter.IsNull()", !m_ImplRefCounter.IsNull());
    if (m_ImplRefCounter.IsNull())
        return *this;
    m_ImplRefCounter.MakeUnique();
    m_ImplRefCounter->Step();
    return *this;
}

bool PolyArc::Iterator::operator==(const Iterator& other) const {
    if (m_ImplRefCounter.IsNull() || other.m_ImplRefCounter.IsNull())
        return m_ImplRefCounter.IsNull() && other.m_ImplRefCounter.IsNull();
    return *m_ImplRefCounter == *other.m_ImplRefCounter;
}

} // namespace geom
