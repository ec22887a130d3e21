#include "core/geometry/Rectangles.h"

#include <gtest/gtest.h>

namespace skyvane {

using Rect = irr::core::rect<int>;

TEST(Rectangles, WindowOfAFullHdDesktopKeepsBothEdges) {
    EXPECT_EQ(Rect(0, 0, 1728, 972), makeXic(Rect(0, 0, 1920 * 9 / 10, 1080 * 9 / 10), 1.7777778f));
}

TEST(Rectangles, ShrinksAcrossTheLongerSideAroundTheCentre) {
    EXPECT_EQ(Rect(350, 100, 750, 500), makeXic(Rect(100, 100, 1000, 500), 1.0f));
    EXPECT_EQ(Rect(0, 450, 200, 550), makeXic(Rect(0, 0, 200, 1000), 2.0f));
}

TEST(Rectangles, HalfLengthsAreTruncatedSoThatTheResultNeverGrows) {
    const Rect odd(0, 0, 101, 51);
    const Rect square = makeXic(odd, 1.0f);
    EXPECT_EQ(Rect(25, 0, 75, 51), square);
}

TEST(Rectangles, QuadraticWorksInPlace) {
    Rect rect(10, 10, 110, 50);
    EXPECT_EQ(&rect, &makeQuadratic(rect));
    EXPECT_EQ(Rect(40, 10, 80, 50), rect);
}

TEST(Rectangles, LimitsHalveAwayTheExcessAndShiftTheRest) {
    const Rect bounds(0, 0, 100, 50);
    EXPECT_EQ(Rect(0, 0, 100, 50), limitRect(Rect(-40, -20, 141, 200), bounds)) << "too large both ways";
    EXPECT_EQ(Rect(80, 40, 100, 50), limitRect(Rect(95, 45, 115, 55), bounds)) << "shifted back";
    EXPECT_EQ(Rect(0, 5, 20, 15), limitRect(Rect(-30, 5, -10, 15), bounds));
    EXPECT_EQ(Rect(10, 10, 20, 20), limitRect(Rect(10, 10, 20, 20), bounds)) << "within";
    EXPECT_EQ(bounds, limitRect(Rect(-2147483647, -2147483647, 2147483647, 2147483647), bounds));
}

TEST(Rectangles, AMeaninglessRatioLeavesTheRectangle) {
    const Rect rect(1, 2, 3, 4);
    EXPECT_EQ(rect, makeXic(rect, 0.0f));
    EXPECT_EQ(rect, makeXic(rect, -1.0f));
}

TEST(Rectangles, TellWhetherTheyHaveAnAreaThatNoIntHolds) {
    EXPECT_TRUE(hasArea(Rect(0, 0, 65536, 65536))) << "whose product is 0 in 32 bits";
    EXPECT_TRUE(hasArea(Rect(0, 0, 166, 26800026)));
    EXPECT_FALSE(hasArea(Rect(5, 0, 5, 100)));
    EXPECT_FALSE(hasArea(Rect(10, 10, 5, 5))) << "inside out both ways";
}

} // namespace skyvane
