#include "model/Footprint.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

/// A footprint of pins A1, b and a1.
struct FootprintTest : testing::Test {
    FootprintPin m_First{nullptr, "A1", geom::Point(1, 2), geom::Point(), 90.0};
    FootprintPin m_Second{nullptr, "b", geom::Point(), geom::Point(), 0.0};
    FootprintPin m_Third{nullptr, "a1", geom::Point(), geom::Point(), 0.0};
    Footprint m_Footprint{"SOT", {&m_First, &m_Second, &m_Third}};
};

} // namespace

TEST_F(FootprintTest, GetPinsReplacesWhatWasThere) {
    std::vector<FootprintPin*> pins(7);
    EXPECT_EQ(m_Footprint.GetPins(pins), 3);
    EXPECT_THAT(pins, ElementsAre(&m_First, &m_Second, &m_Third));
    EXPECT_EQ(m_Footprint.GetName(), AString("SOT"));
}

TEST_F(FootprintTest, FindsThePinOfANameInAnyCase) {
    EXPECT_EQ(m_Footprint.FindPin("B"), &m_Second);
    EXPECT_EQ(m_Footprint.GetPinIndex("B"), 1);
}

TEST_F(FootprintTest, TheFirstOfEqualNamesAnswers) {
    EXPECT_EQ(m_Footprint.FindPin("a1"), &m_First);
    EXPECT_EQ(m_Footprint.GetPinIndex("a1"), 0);
}

TEST_F(FootprintTest, AnUnknownPinIsNullAndHasIndexMinusOne) {
    EXPECT_EQ(m_Footprint.FindPin("A2"), nullptr);
    EXPECT_EQ(m_Footprint.GetPinIndex("A2"), -1);
    EXPECT_EQ(Footprint("empty", {}).GetPinIndex("A1"), -1);
}

TEST_F(FootprintTest, APinHoldsWhatItIsGiven) {
    const FootprintPin pin(nullptr, "7", geom::Point(1, 2), geom::Point(3, 4), 45.0);
    EXPECT_EQ(pin.GetName(), AString("7"));
    EXPECT_EQ(pin.location, geom::Point(1, 2));
    EXPECT_EQ(pin.displacement, geom::Point(3, 4));
    EXPECT_EQ(pin.angle, 45.0);
    EXPECT_EQ(pin.padstack, nullptr);
}

TEST_F(FootprintTest, APinListsItsSiblings) {
    std::vector<FootprintPin*> siblings(4);
    EXPECT_EQ(m_First.GetSiblingPins(siblings), 0);
    EXPECT_THAT(siblings, ElementsAre());
    m_First.siblingPins = {&m_Third, &m_Second};
    EXPECT_EQ(m_First.GetSiblingPins(siblings), 2);
    EXPECT_THAT(siblings, ElementsAre(&m_Third, &m_Second));
}
