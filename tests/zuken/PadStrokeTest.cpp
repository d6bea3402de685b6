#include "zuken/PadStroke.h"

#include "tests/BoardText.h"

namespace {

struct StrokeCase {
    const char* m_Name;
    const char* m_Vertex;
    double m_Width;
    double m_Height;
};

// clang-format off
const StrokeCase k_StrokeCases[] = {
    {"Level",              "(vertex (pt 0 0 (width 2)) (pt 10 0))",               10, 2},
    {"LevelToTheLeft",     "(vertex (pt 10 5 (width 2)) (pt 0 5))",               10, 2},
    {"Upright",            "(vertex (pt 0 0 (width 2)) (pt 0 10))",                2, 10},
    {"Downward",           "(vertex (pt 7 10 (width 2)) (pt 7 0))",                2, 10},
    {"Leaning",            "(vertex (pt 0 0 (width 2)) (pt 3 4))",                 2, 4},
    {"RisesByLessThanTheTolerance", "(vertex (pt 0 0 (width 2)) (pt 10 0.9e-8))", 10, 2},
    {"RisesByTheTolerance","(vertex (pt 0 0 (width 2)) (pt 10 1e-8))",             2, 1e-8},
    {"LastPointCounts",    "(vertex (pt 0 0 (width 2)) (pt 5 5) (pt 4 0))",        4, 2},
    {"PenOfFirstPoint",    "(vertex (pt 0 0 (width 2)) (pt 4 0 (width 9)))",       4, 2},
    {"OnePointEndsAtZero", "(vertex (pt 3 0 (width 2)))",                          3, 2},
    {"NoPen",              "(vertex (pt 0 0) (pt 4 0))",                           4, 0},
    {"NoNumbersAreZero",   "(vertex (pt 3 0 (width 2)) (pt 9 0) (pt))",            3, 2},
    {"OthersPassedOver",   "(vertex 1 (arc 9 9) (PT 0 0 (WIDTH 2)) x (pt 4 0))",   4, 2},
    {"Empty",              "(vertex)",                                             0, 0},
    {"NoVertex",           "",                                                     0, 0},
};
// clang-format on

class PadStrokeTest : public testing::TestWithParam<StrokeCase> {};

} // namespace

TEST_P(PadStrokeTest, BecomesABox) {
    const StrokeCase& row = GetParam();
    const PadStroke stroke = ReadPadStroke_G(ListOf(std::string("(line ") + row.m_Vertex + ")"), 1.0);
    EXPECT_EQ(row.m_Width, stroke.m_Width);
    EXPECT_EQ(row.m_Height, stroke.m_Height);
}

INSTANTIATE_TEST_SUITE_P(Strokes, PadStrokeTest, testing::ValuesIn(k_StrokeCases),
    [](const auto& row) { return std::string(row.param.m_Name); });

TEST(PadStrokeScaleTest, AllLengthsAreScaled) {
    const PadStroke stroke = ReadPadStroke_G(ListOf("(line (vertex (pt 10 0 (width 6)) (pt 50 0)))"), 0.25);
    EXPECT_EQ(10.0, stroke.m_Width);
    EXPECT_EQ(1.5, stroke.m_Height);
}

TEST(PadStrokeScaleTest, ToleranceHoldsForTheScaledLengths) {
    const PadStroke stroke = ReadPadStroke_G(ListOf("(line (vertex (pt 0 0 (width 2)) (pt 4 1e-7)))"), 0.0625);
    EXPECT_EQ(0.25, stroke.m_Width);
    EXPECT_EQ(0.125, stroke.m_Height);
}
