#include "zuken/Placement.h"

#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

TEST(PlacementTest, NothingToDoIsTheIdentity) { EXPECT_TRUE(GetPlacement_G(geom::k_Origin, 0, false).IsIdentity()); }

TEST(PlacementTest, ShapeIsMovedAndThenTurnedWhereItIs) {
    const geom::Transformation placement = GetPlacement_G(geom::Point(10, 20), 90, false);
    EXPECT_EQ(geom::Point(10, 20), placement.ApplyToPoint(geom::k_Origin));
    EXPECT_EQ(geom::Point(10, 23), placement.ApplyToPoint(geom::Point(3, 0)));
    EXPECT_FALSE(placement.IsMirroring());
}

TEST(PlacementTest, BottomSideTurnsTheOtherWayAndIsMirrored) {
    const geom::Transformation placement = GetPlacement_G(geom::Point(10, 20), 90, true);
    EXPECT_EQ(geom::Point(10, 20), placement.ApplyToPoint(geom::k_Origin));
    EXPECT_EQ(geom::Point(10, 17), placement.ApplyToPoint(geom::Point(3, 0))) << "on the axis of the mirror";
    EXPECT_EQ(geom::Point(7, 20), placement.ApplyToPoint(geom::Point(0, 3))) << "at (13, 20) ahead of the mirror";
    EXPECT_TRUE(placement.IsMirroring());
}
