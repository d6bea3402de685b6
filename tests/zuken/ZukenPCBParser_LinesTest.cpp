#include "tests/zuken/BoardSections.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// The traces of one line with these vertices.
class Line {
public:
    explicit Line(const std::string& vertices) : m_Parser(MakeParser()) {
        EXPECT_TRUE(m_Parser->ReadLine(ListOf("(line (vertex " + vertices + "))"), m_Parser->GetNet("A"), "L1"));
    }
    const std::vector<Trace*>& Traces() const { return m_Parser->GetNet("A")->traces; }
    const Trace& Only() const {
        EXPECT_THAT(Traces(), SizeIs(1));
        return *Traces().at(0);
    }

private:
    std::unique_ptr<ZukenPCBParser> m_Parser;
};

} // namespace

TEST(ZukenPCBParser_LinesTest, LineOfOneWidthIsOneTrace) {
    const Line line("(pt 0 0 (width 2)) (pt 10 0 (width 2)) (pt 10 5 (width 2))");
    EXPECT_THAT(PlacesOf(line.Only()), ElementsAre(geom::Point(0, 0), geom::Point(10, 0), geom::Point(10, 5)));
    EXPECT_THAT(WidthsOf(line.Only()), ElementsAre(2, 2, 2));
    EXPECT_THAT(HeightsOf(line.Only()), ElementsAre(0, 0, 0));
    EXPECT_EQ("L1", line.Only().layer.QRL_ANSI());
}

TEST(ZukenPCBParser_LinesTest, EveryVertexHasTheFixedStyle) {
    const Line line("(pt 0 0 (width 1)) (pt 9 0 (width 2) (tarc (r 1))) (pt 9 9)"
                    " (arc CW (r 2) (begin (pt 9 9 (width 1))) (center 1 0) (end (pt 13 9)))");
    ASSERT_THAT(line.Traces(), SizeIs(3));
    for (const Trace* trace : line.Traces()) {
        for (const PathVertex& vertex : trace->vertices) {
            EXPECT_EQ(3, vertex.endStyle);
            EXPECT_EQ(2, vertex.cornerStyle);
            EXPECT_EQ(0.0, vertex.reserved);
        }
    }
}

TEST(ZukenPCBParser_LinesTest, PointWithoutAWidthKeepsTheOneThatRuns) {
    EXPECT_THAT(WidthsOf(Line("(pt 0 0 (width 2)) (pt 10 0) (pt 10 5)").Only()), ElementsAre(2, 2, 2));
}

TEST(ZukenPCBParser_LinesTest, WidthWithoutANumberIsZero) {
    const Line line("(pt 0 0 (width 2)) (pt 10 0 (width))");
    ASSERT_THAT(line.Traces(), SizeIs(2));
    EXPECT_THAT(WidthsOf(*line.Traces()[1]), ElementsAre(0));
}

TEST(ZukenPCBParser_LinesTest, LineIsCutWhereItsWidthChanges) {
    const Line line("(pt 0 0 (width 1)) (pt 10 0 (width 1)) (pt 20 0 (width 2)) (pt 30 0 (width 2))");
    ASSERT_THAT(line.Traces(), SizeIs(2));
    EXPECT_THAT(PlacesOf(*line.Traces()[0]), ElementsAre(geom::Point(0, 0), geom::Point(10, 0), geom::Point(20, 0)));
    EXPECT_THAT(WidthsOf(*line.Traces()[0]), ElementsAre(1, 1, 1));
    EXPECT_THAT(PlacesOf(*line.Traces()[1]), ElementsAre(geom::Point(20, 0), geom::Point(30, 0)));
    EXPECT_THAT(WidthsOf(*line.Traces()[1]), ElementsAre(2, 2));
}

TEST(ZukenPCBParser_LinesTest, WidthChangeOnTheLastPointLeavesATraceOfOneVertex) {
    const Line line("(pt 0 0 (width 1)) (pt 10 0 (width 2))");
    ASSERT_THAT(line.Traces(), SizeIs(2));
    EXPECT_THAT(PlacesOf(*line.Traces()[1]), ElementsAre(geom::Point(10, 0)));
    EXPECT_THAT(WidthsOf(*line.Traces()[1]), ElementsAre(2));
}

TEST(ZukenPCBParser_LinesTest, LineAsThinAsTheToleranceIsNotCut) {
    const Line line("(pt 0 0 (width 0)) (pt 10 0 (width 1e-10)) (pt 20 0 (width 5)) (pt 30 0)");
    EXPECT_THAT(WidthsOf(line.Only()), ElementsAre(0, 1e-10, 5, 5));
    EXPECT_THAT(Line("(pt 0 0 (width 1.1e-10)) (pt 10 0 (width 5))").Traces(), SizeIs(2));
}

TEST(ZukenPCBParser_LinesTest, WidthsWithinTheToleranceAreTheSame) {
    EXPECT_THAT(
        WidthsOf(Line("(pt 0 0 (width 0.5)) (pt 10 0 (width 0.50000000009))").Only()), ElementsAre(0.5, 0.50000000009));
    EXPECT_THAT(Line("(pt 0 0 (width 0.5)) (pt 10 0 (width 0.5000000002))").Traces(), SizeIs(2));
}

TEST(ZukenPCBParser_LinesTest, LineWithoutVerticesIsAnEmptyTrace) {
    EXPECT_THAT(Line("").Only().vertices, IsEmpty());
    EXPECT_THAT(Line("(circle 5) word").Only().vertices, IsEmpty());
    const auto parser = MakeParser();
    EXPECT_TRUE(parser->ReadLine(ListOf("(line)"), parser->GetNet("A"), "L1"));
    EXPECT_THAT(parser->GetNet("A")->traces, SizeIs(1));
}

TEST(ZukenPCBParser_LinesTest, LengthsAreScaled) {
    const auto parser = MakeParser();
    parser->ReadUnits(ListOf("(header (unit DBUNIT))"));
    // A quarter turn from (1, 0) to (0, 1): 1073741824 counts the radius as 2^30.
    parser->ReadLine(ListOf("(line (vertex (pt 200000 0 (width 25000))"
                            " (arc CCW (r 100000) (begin (pt 100000 0 (width 25000))) (center -1073741824 0)"
                            " (end (pt 0 100000 (width 25000))))))"),
        parser->GetNet("A"), "L1");
    const Trace& trace = *parser->GetNet("A")->traces.at(0);
    EXPECT_THAT(PlacesOf(trace), ElementsAre(geom::Point(2, 0), geom::Point(1, 0), geom::Point(0, 1)));
    EXPECT_THAT(WidthsOf(trace), ElementsAre(0.25, 0.25, 0.25));
    EXPECT_THAT(HeightsOf(trace), ElementsAre(0, DoubleNear(-(1 - std::sqrt(0.5)), 1e-15), 0));
}

TEST(ZukenPCBParser_LinesTest, CenterCountsTheRadiusInTheUnitOfTheFile) {
    // The half circle from (0, 0) to (0, 4) about (0, 2), clockwise, with 2^30 and 2^30 / 100000 for the radius.
    const auto heightIn = [](const std::string& unit, const std::string& arc) {
        const auto parser = MakeParser();
        parser->ReadUnits(ListOf("(header (unit " + unit + "))"));
        parser->ReadLine(ListOf("(line (vertex " + arc + "))"), parser->GetNet("A"), "L1");
        return parser->GetNet("A")->traces.at(0)->vertices.at(0).height;
    };
    EXPECT_EQ(200000 * 1e-5,
        heightIn("DBUNIT", "(arc CW (r 200000) (begin (pt 0 0)) (center 0 1073741824) (end (pt 0 400000)))"));
    EXPECT_EQ(2.0, heightIn("MM", "(arc CW (r 2) (begin (pt 0 0)) (center 0 10737.41824) (end (pt 0 4)))"));
}

TEST(ZukenPCBParser_LinesTest, FirstOfTwoWidthsAndOfTwoRoundingsCounts) {
    const Line line("(pt 0 0 (width 1) (width 7)) (pt 10 0 (tarc (r 2)) (tarc (r 3))) (pt 10 10)");
    EXPECT_THAT(PlacesOf(line.Only()),
        ElementsAre(geom::Point(0, 0), geom::Point(8, 0), geom::Point(10, 2), geom::Point(10, 10)));
    EXPECT_THAT(WidthsOf(line.Only()), ElementsAre(1, 1, 1, 1));
}

TEST(ZukenPCBParser_LinesTest, HeightOfAnArcStandsAtItsBegin) {
    // The half circle about (12, 0), clockwise over (12, 2).
    const Line line("(pt 0 0 (width 1)) (arc CW (r 2) (begin (pt 10 0 (width 1))) (center 1 0)"
                    " (end (pt 14 0 (width 1)))) (pt 20 0)");
    EXPECT_THAT(PlacesOf(line.Only()),
        ElementsAre(geom::Point(0, 0), geom::Point(10, 0), geom::Point(14, 0), geom::Point(20, 0)));
    EXPECT_THAT(HeightsOf(line.Only()), ElementsAre(0, 2, 0, 0));
}

TEST(ZukenPCBParser_LinesTest, DirectionMatchesInAnyCaseAndIsOtherwiseCounterClockwise) {
    const auto heightOf = [](const std::string& direction) {
        return Line("(arc " + direction + " (r 2) (begin (pt 10 0)) (center 1 0) (end (pt 14 0)))")
            .Only()
            .vertices.at(0)
            .height;
    };
    EXPECT_EQ(2.0, heightOf("CW"));
    EXPECT_EQ(2.0, heightOf("cw"));
    EXPECT_EQ(-2.0, heightOf("CCW"));
    EXPECT_EQ(-2.0, heightOf("clockwise"));
    EXPECT_EQ(-2.0, heightOf(""));
}

TEST(ZukenPCBParser_LinesTest, ArcWithoutWidthsHasTheWidthZero) {
    EXPECT_THAT(
        WidthsOf(Line("(arc CW (r 2) (begin (pt 10 0)) (center 1 0) (end (pt 14 0)))").Only()), ElementsAre(0, 0));
}

TEST(ZukenPCBParser_LinesTest, WidthAtTheEndOfAnArcRunsOn) {
    EXPECT_THAT(
        WidthsOf(
            Line("(arc CW (r 2) (begin (pt 10 0 (width 1))) (center 1 0) (end (pt 14 0 (width 1)))) (pt 20 0)").Only()),
        ElementsAre(1, 1, 1));
    EXPECT_THAT(
        Line("(arc CW (r 2) (begin (pt 10 0 (width 1))) (center 1 0) (end (pt 14 0 (width 2)))) (pt 20 0)").Traces(),
        SizeIs(1))
        << "the end of an arc doesn't cut";
}

TEST(ZukenPCBParser_LinesTest, WidthChangeAtAnArcLosesTheArc) {
    const Line line("(pt 0 0 (width 1)) (arc CW (r 2) (begin (pt 10 0 (width 3))) (center 1 0)"
                    " (end (pt 14 0 (width 3)))) (pt 20 0)");
    ASSERT_THAT(line.Traces(), SizeIs(2));
    EXPECT_THAT(PlacesOf(*line.Traces()[0]), ElementsAre(geom::Point(0, 0), geom::Point(10, 0), geom::Point(10, 0)));
    EXPECT_THAT(WidthsOf(*line.Traces()[0]), ElementsAre(1, 3, 1));
    EXPECT_THAT(HeightsOf(*line.Traces()[0]), ElementsAre(0, 2, 2));
    EXPECT_THAT(PlacesOf(*line.Traces()[1]), ElementsAre(geom::Point(14, 0), geom::Point(20, 0)));
    EXPECT_THAT(WidthsOf(*line.Traces()[1]), ElementsAre(3, 3));
}

TEST(ZukenPCBParser_LinesTest, RoundingReplacesACorner) {
    const Line line("(pt 0 0 (width 1)) (pt 10 0 (tarc (r 2))) (pt 10 10)");
    EXPECT_THAT(PlacesOf(line.Only()),
        ElementsAre(geom::Point(0, 0), geom::Point(8, 0), geom::Point(10, 2), geom::Point(10, 10)));
    // A left turn: counter-clockwise, with the height of a quarter circle.
    EXPECT_THAT(HeightsOf(line.Only()), ElementsAre(0, DoubleNear(-2 * (1 - std::sqrt(0.5)), 1e-14), 0, 0));
    EXPECT_THAT(WidthsOf(line.Only()), ElementsAre(1, 1, 1, 1));
}

TEST(ZukenPCBParser_LinesTest, RoundingWhereTheWidthChangesHasNoEffect) {
    const Line line("(pt 0 0 (width 1)) (pt 10 0 (width 2) (tarc (r 2))) (pt 10 10)");
    ASSERT_THAT(line.Traces(), SizeIs(2));
    EXPECT_THAT(PlacesOf(*line.Traces()[0]), ElementsAre(geom::Point(0, 0), geom::Point(10, 0)));
    EXPECT_THAT(WidthsOf(*line.Traces()[0]), ElementsAre(1, 1));
    EXPECT_THAT(PlacesOf(*line.Traces()[1]), ElementsAre(geom::Point(10, 0), geom::Point(10, 10)));
}

TEST(ZukenPCBParser_LinesTest, RoundingIsMadeInTheTraceThatIsClosedNext) {
    const Line line("(pt 0 0 (width 1)) (pt 10 0 (tarc (r 2))) (pt 10 10 (width 3)) (pt 0 10)");
    ASSERT_THAT(line.Traces(), SizeIs(2));
    EXPECT_THAT(PlacesOf(*line.Traces()[0]),
        ElementsAre(geom::Point(0, 0), geom::Point(8, 0), geom::Point(10, 2), geom::Point(10, 10)));
    EXPECT_THAT(PlacesOf(*line.Traces()[1]), ElementsAre(geom::Point(10, 10), geom::Point(0, 10)));
}

TEST(ZukenPCBParser_LinesTest, RoundingsWaitWhereAnArcCutsTheLine) {
    const Line line("(pt 0 0 (width 1)) (pt 10 0 (tarc (r 2))) (pt 10 10)"
                    " (arc CW (r 2) (begin (pt 10 20 (width 3))) (center 1 0) (end (pt 14 20 (width 3)))) (pt 20 20)");
    ASSERT_THAT(line.Traces(), SizeIs(2));
    EXPECT_THAT(PlacesOf(*line.Traces()[0]), ElementsAre(geom::Point(0, 0), geom::Point(10, 0), geom::Point(10, 10),
                                                 geom::Point(10, 20), geom::Point(10, 20)));
    EXPECT_THAT(PlacesOf(*line.Traces()[1]), ElementsAre(geom::Point(14, 20), geom::Point(20, 20)))
        << "the rounding is tried here, where no piece starts at its corner";
}

TEST(ZukenPCBParser_LinesTest, RoundingMovesTheHeightOfAnArcToThePieceAheadOfIt) {
    const Line line("(pt 0 0 (width 1)) (arc CW (r 2) (begin (pt 10 0 (width 1))) (center 1 0)"
                    " (end (pt 14 0 (width 1)))) (pt 30 0 (tarc (r 2))) (pt 30 10)");
    EXPECT_THAT(PlacesOf(line.Only()), ElementsAre(geom::Point(0, 0), geom::Point(10, 0), geom::Point(14, 0),
                                           geom::Point(28, 0), geom::Point(30, 2), geom::Point(30, 10)));
    EXPECT_THAT(HeightsOf(line.Only()), ElementsAre(2, 0, 0, DoubleNear(-2 * (1 - std::sqrt(0.5)), 1e-13), 0, 0));
}

TEST(ZukenPCBParser_LinesTest, EveryCornerOfALongLineIsRounded) {
    std::string vertices = "(pt 0 0)";
    for (int i = 1; i < 20000; ++i)
        vertices += "(pt " + std::to_string(10 * (i / 2)) + ' ' + std::to_string(10 * ((i + 1) / 2)) + " (tarc (r 1)))";
    // Each inner corner of the stairs has two vertices in place of one.
    EXPECT_THAT(Line(vertices).Only().vertices, SizeIs(20000 + 19998));
}
