#include "model/PathVertex.h"

#include <gtest/gtest.h>

TEST(PathVertexTest, StylesHaveTheirNumbersFromTheStart) {
    const PathVertex vertex;
    EXPECT_EQ(vertex.endStyle, 3);
    EXPECT_EQ(vertex.cornerStyle, 2);
    EXPECT_EQ(vertex.reserved, 0.0);
}

TEST(PathVertexTest, ACopyKeepsAllFields) {
    const PathVertex vertex{1.0, 2.0, 3.0, 4.0, 5.0, 6, 7, 8.0};
    const PathVertex copy = vertex; // NOLINT(performance-unnecessary-copy-initialization): the copy is what is tested
    EXPECT_EQ(copy.x, 1.0);
    EXPECT_EQ(copy.y, 2.0);
    EXPECT_EQ(copy.height, 3.0);
    EXPECT_EQ(copy.startWidth, 4.0);
    EXPECT_EQ(copy.endWidth, 5.0);
    EXPECT_EQ(copy.endStyle, 6);
    EXPECT_EQ(copy.cornerStyle, 7);
    EXPECT_EQ(copy.reserved, 8.0);
}
