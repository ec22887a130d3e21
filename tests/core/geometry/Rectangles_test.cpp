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

TEST(Rectangles, AMeaninglessRatioLeavesTheRectangle) {
    const Rect rect(1, 2, 3, 4);
    EXPECT_EQ(rect, makeXic(rect, 0.0f));
    EXPECT_EQ(rect, makeXic(rect, -1.0f));
}

} // namespace skyvane
