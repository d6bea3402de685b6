// Results whose last bits would be others if a product and the sum behind it were fused into one rounding. Chains
// compare end points bit for bit, so the same board must give the same bits from every compiler and processor.
//
// The expected bits come from the same formulas in a language that never fuses. Inputs are read from text, because a
// compiler that knows them reckons ahead, and without fusing.

#include "lib/math/geometry/Transformation.h"
#include "lib/math/geometry/Triangle.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace geom;
using fixtures::ArcOf;
using fixtures::SegmentOf;

/// All bits of a number, for comparison and to be read on failure.
std::string Hex(double value) {
    std::ostringstream out;
    out << std::hexfloat << value;
    return out.str();
}
std::string Hex(Point point) { return Hex(double(point.GetX())) + " " + Hex(double(point.GetY())); }
std::string Hex(double x, double y) { return Hex(Point(x, y)); }

std::string GetCenterBits(const std::string& arc) { return Hex(ArcOf(arc).GetCenter()); }
std::string GetRadiusBits(const std::string& arc) { return Hex(double(ArcOf(arc).GetRadius())); }

/// The vector product of the two vectors from the origin to the ends.
std::string GetVectorProductBits(const std::string& ends) {
    const Segment both = SegmentOf(ends);
    return Hex(double(Vector(both.GetStart()).GetVectorProductWith(Vector(both.GetEnd()))));
}

/// The second point, turned about the first by 45 degrees.
std::string GetTurnedBits(const std::string& points) {
    const Segment both = SegmentOf(points);
    return Hex(Transformation(k_Angle_45, both.GetStart()).ApplyToPoint(both.GetEnd()));
}

TEST(FusedArithmeticTest, CenterKeepsItsBits) {
    EXPECT_EQ(GetCenterBits("58.7,-94.9 -15.7,28 h22.6"), Hex(0x1.b5f6a6d6b2707p+6, 0x1.3d12a5f3b8ab4p+4));
    EXPECT_EQ(GetCenterBits("-18.2,-45.6 9.1,-16.2 h61.6"), Hex(-0x1.8b9fb4575404ep+4, -0x1.85451ecb88894p+3));
    EXPECT_EQ(GetCenterBits("10.3,-86.8 -56.1,47.6 h-40.5"), Hex(-0x1.0bb70e6dccefep+6, -0x1.4ad1865554dbfp+5));
    EXPECT_EQ(GetCenterBits("-10.7,6.8 64.2,-64.6 h-79.9"), Hex(0x1.57cbec5112626p+3, -0x1.6d8721c6186bp+5));
}

TEST(FusedArithmeticTest, RadiusKeepsItsBits) {
    EXPECT_EQ(GetRadiusBits("5.2,-68.5 -7.1,36.8 h18.8"), Hex(0x1.508509cde3ad4p+6));
    EXPECT_EQ(GetRadiusBits("-77.2,-28.1 -73.4,57.5 h41.3"), Hex(0x1.56f7b1a67e33cp+5));
}

TEST(FusedArithmeticTest, VectorProductKeepsItsBits) {
    EXPECT_EQ(GetVectorProductBits("24.8,27.5 -78.3,89.9"), Hex(0x1.11ec51eb851ecp+12));
    EXPECT_EQ(GetVectorProductBits("-73.9,67.1 -69.1,60.5"), Hex(0x1.4b51eb851eb6p+7));
    EXPECT_EQ(GetVectorProductBits("32.7,88.6 -84.8,-19.4"), Hex(0x1.adee666666665p+12));
    EXPECT_EQ(GetVectorProductBits("-4.2,48.6 -9.6,-63.6"), Hex(0x1.6ed70a3d70a3ep+9));
}

TEST(FusedArithmeticTest, PointsInLineWithTheOriginStayInLine) {
    // 0.2 and 0.6 are exactly the doubles of 0.1 and 0.3, so both products round alike. Fused, one doesn't round at
    // all.
    const Segment both = SegmentOf("0.1,0.3 0.2,0.6");
    EXPECT_EQ(Triangle(k_Origin, both.GetStart(), both.GetEnd()).GetDirection(), k_NoDirection);
}

TEST(FusedArithmeticTest, TransformedPointKeepsItsBits) {
    ASSERT_EQ(Hex(k_Angle_45.Cos(), k_Angle_45.Sin()), Hex(0x1.6a09e667f3bcdp-1, 0x1.6a09e667f3bccp-1))
        << "another sine or cosine than the bits below were reckoned with";
    EXPECT_EQ(GetTurnedBits("32.7,88.6 -84.8,-19.4"), Hex(0x1.9fb842cc56d7p+4, -0x1.1b690a82bbff3p+6));
    EXPECT_EQ(GetTurnedBits("-36.1,-80.5 27.6,-17.3"), Hex(-0x1.1df8b8fffce56p+5, 0x1.276b51cedebe2p+3));
    EXPECT_EQ(GetTurnedBits("-36.1,55.2 -57.7,-99.5"), Hex(0x1.d02096c5c9b29p+5, -0x1.15da0925fa4f6p+6));
}

} // namespace
