#ifndef QRL_TESTS_GEOMETRYFIXTURES_H
#define QRL_TESTS_GEOMETRYFIXTURES_H

#include "lib/math/geometry/Arc.h"
#include "lib/math/geometry/Box.h"
#include "lib/math/geometry/Circumference.h"
#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/Segment.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <iomanip>
#include <limits>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

// Printers for failed expectations: 17 digits tell any two doubles apart.

namespace base {

template <class T>
void PrintTo(const Range_T<T>& range, std::ostream* os) {
    if (range.IsEmpty())
        *os << "empty";
    else
        *os << std::setprecision(17) << double(range.GetMin()) << ".." << double(range.GetMax());
}

} // namespace base

namespace geom {

inline void PrintTo(Unit unit, std::ostream* os) { *os << std::setprecision(17) << double(unit); }
inline void PrintTo(Area area, std::ostream* os) { *os << std::setprecision(17) << double(area); }
inline void PrintTo(Angle angle, std::ostream* os) {
    *os << std::setprecision(17) << angle.GetValue(k_Radians) << " rad";
}
inline void PrintTo(Azimuth azimuth, std::ostream* os) { PrintTo(azimuth.GetAngle(), os); }
inline void PrintTo(Vector vector, std::ostream* os) {
    *os << std::setprecision(17) << double(vector.GetX()) << "," << double(vector.GetY());
}
inline void PrintTo(Point point, std::ostream* os) { PrintTo(Vector(point), os); }
inline void PrintTo(const Segment& segment, std::ostream* os) {
    PrintTo(segment.GetStart(), os);
    *os << " ";
    PrintTo(segment.GetEnd(), os);
}
inline void PrintTo(const Box& box, std::ostream* os) {
    *os << "x ";
    PrintTo(box.GetXRange(), os);
    *os << " y ";
    PrintTo(box.GetYRange(), os);
}
inline void PrintTo(const Line& line, std::ostream* os) {
    *os << std::setprecision(17) << line.GetA() << " x + " << line.GetB() << " y + " << line.GetC() << " = 0";
}
inline void PrintTo(const Circle& circle, std::ostream* os) {
    PrintTo(circle.GetCenter(), os);
    *os << std::setprecision(17) << " r" << double(circle.GetRadius());
}
inline void PrintTo(const Circumference& circumference, std::ostream* os) { PrintTo(Circle(circumference), os); }
inline void PrintTo(const Arc& arc, std::ostream* os) {
    PrintTo(arc.GetStartEndSegment(), os);
    *os << " h";
    PrintTo(arc.GetHeight(), os);
    if (arc.IsFullCircle())
        *os << " a" << arc.GetCenterAzimuth().GetAngle().GetValue(k_Degrees);
}

} // namespace geom

namespace fixtures {

/// Numbers out of a text, whatever stands between them.
inline std::vector<double> NumbersOf(const std::string& text, std::size_t count) {
    std::string spaced = text;
    for (char& c : spaced)
        if (std::strchr("+-.0123456789e", c) == nullptr)
            c = ' ';
    std::istringstream in(spaced);
    std::vector<double> numbers;
    for (double number = 0; in >> number;)
        numbers.push_back(number);
    if (numbers.size() != count)
        throw std::invalid_argument(text);
    return numbers;
}

/// "1,2"
inline geom::Point PointOf(const std::string& text) {
    const std::vector<double> n = NumbersOf(text, 2);
    return {n[0], n[1]};
}

/// "0,0 10,5"
inline geom::Segment SegmentOf(const std::string& text) {
    const std::vector<double> n = NumbersOf(text, 4);
    return {{n[0], n[1]}, {n[2], n[3]}};
}

/// The line through the ends of a segment: "0,0 10,5"
inline geom::Line LineOf(const std::string& text) { return geom::Line(SegmentOf(text)); }

/// Two opposite corners: "0,0 10,20"
inline geom::Box BoxOf(const std::string& text) { return geom::Box(SegmentOf(text)); }

/// Centre and radius: "1,2 r3"
inline geom::Circle CircleOf(const std::string& text) {
    const std::vector<double> n = NumbersOf(text, 3);
    return {{n[0], n[1]}, n[2]};
}

inline geom::Circumference CircumferenceOf(const std::string& text) { return geom::Circumference(CircleOf(text)); }

/// Start, end and height: "0,0 10,0 h-5". Without a height it is straight. A full circle names in degrees where its
/// centre lies from its start: "1,0 1,0 h-2 a180"; multiples of 90 are exact.
inline geom::Arc ArcOf(const std::string& text) {
    const std::size_t h = text.find('h');
    const std::size_t a = text.find('a');
    const geom::Segment ends = SegmentOf(text.substr(0, h));
    const double height = h == std::string::npos ? 0 : NumbersOf(text.substr(h, a - h), 1)[0];
    if (a == std::string::npos)
        return {ends.GetStart(), ends.GetEnd(), height};
    const geom::Azimuth toCenter(geom::k_Degrees, NumbersOf(text.substr(a), 1)[0]);
    const double radius = std::abs(height) / 2;
    const geom::Circumference circumference(ends.GetStart() + geom::Vector(toCenter, radius), radius);
    return {circumference, toCenter.GetOpposite(), height < 0 ? geom::k_CCW : geom::k_CW};
}

/// The straight pieces between consecutive points: "0,0 10,0 10,10"
inline std::vector<geom::Arc> ArcsOf(const std::string& text) {
    std::vector<geom::Arc> arcs;
    std::istringstream in(text);
    std::string before;
    in >> before;
    for (std::string point; in >> point; before = point)
        arcs.push_back(ArcOf(before + " " + point));
    return arcs;
}

/// One unit in the last place up and down.
inline double Up(double value) { return std::nextafter(value, std::numeric_limits<double>::infinity()); }
inline double Down(double value) { return std::nextafter(value, -std::numeric_limits<double>::infinity()); }

inline constexpr double k_NaN = std::numeric_limits<double>::quiet_NaN();

/// What is stored: tells -0.0 from 0.0 and one NaN from another.
inline std::uint64_t BitsOf(double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}
inline std::vector<std::uint64_t> BitsOf(geom::Point point) {
    return {BitsOf(double(point.GetX())), BitsOf(double(point.GetY()))};
}

// The canonical shapes.
inline constexpr geom::Segment k_PointLikeSegment{{3, 4}, {3, 4}};
inline constexpr geom::Segment k_RightwardSegment{{0, 0}, {10, 0}};
inline constexpr geom::Segment k_UpwardSegment{{1, 2}, {1, 7}};
inline constexpr geom::Segment k_SlopedSegment{{0, 0}, {3, 4}};
inline constexpr geom::Box k_SquareBox{0, 0, 10, 10};
inline constexpr geom::Box k_TallBox{0, 0, 10, 20};

struct NamedArc {
    const char* m_Name;
    geom::Arc m_Arc;
};

inline void PrintTo(const NamedArc& named, std::ostream* os) {
    *os << named.m_Name << ": ";
    PrintTo(named.m_Arc, os);
}

/// Every kind of arc, both ways where it has two, and its borders, one unit in the last place off.
inline std::vector<NamedArc> CanonicalArcs() {
    const double quarter = 1 - std::sqrt(0.5);
    // clang-format off
    return {
        {"Point",                        ArcOf("3,4 3,4")},
        {"Straight",                     ArcOf("0,0 10,0")},
        {"StraightReversed",             ArcOf("10,0 0,0")},
        {"StraightSloped",               ArcOf("1,2 4,6")},
        {"QuarterClockwise",             geom::Arc({0, 1}, {1, 0}, quarter)},
        {"QuarterCounterClockwise",      geom::Arc({1, 0}, {0, 1}, -quarter)},
        {"QuarterReversed",              geom::Arc({1, 0}, {0, 1}, quarter)},
        {"SmallClockwise",               ArcOf("-3,4 3,4 h1")},
        {"SmallCounterClockwise",        ArcOf("-3,4 3,4 h-1")},
        {"SmallSloped",                  ArcOf("100,200 103,204 h-1")},
        {"HalfClockwise",                ArcOf("0,0 2,0 h1")},
        {"HalfCounterClockwise",         ArcOf("0,0 2,0 h-1")},
        {"HalfReversed",                 ArcOf("2,0 0,0 h1")},
        {"HalfSloped",                   ArcOf("-3,-4 3,4 h5")},
        {"HalfUpright",                  ArcOf("0,0 0,2 h-1")},
        {"JustBelowHalf",                geom::Arc({0, 0}, {2, 0}, Down(1))},
        {"JustAboveHalf",                geom::Arc({0, 0}, {2, 0}, Up(1))},
        {"JustBelowHalfOtherWay",        geom::Arc({0, 0}, {2, 0}, -Down(1))},
        {"JustAboveHalfOtherWay",        geom::Arc({0, 0}, {2, 0}, -Up(1))},
        {"BigClockwise",                 ArcOf("-3,4 3,4 h9")},
        {"BigCounterClockwise",          ArcOf("-3,4 3,4 h-9")},
        {"BigSloped",                    ArcOf("0,0 3,4 h20")},
        {"AllButTheLastUnit",            geom::Arc({2, 0}, {Up(2), 0}, 2)},
        {"FullClockwise",                ArcOf("1,0 1,0 h2 a180")},
        {"FullCounterClockwise",         ArcOf("1,0 1,0 h-2 a180")},
        {"FullFromBelow",                ArcOf("5,3 5,3 h-4 a90")},
        {"FullFromAside",                ArcOf("5,3 5,3 h4 a30")},
        {"AlmostStraight",               geom::Arc({0, 0}, {10, 0}, 1e-9)},
        {"FarAway",                      ArcOf("1000000,1000000 1000002,1000000 h1")},
    };
    // clang-format on
}

} // namespace fixtures

#endif
