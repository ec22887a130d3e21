#include "displays/layout/PanelDrag.h"

#include <gtest/gtest.h>

using namespace skyvane;
using Result = PanelDrag::Result;

namespace {

const irr::core::dimension2d<int> area(1000, 500);
const PanelFractions panel{0.2, 0.2, 0.6, 0.6};

/// A slow drag, judged at its end.
PanelFractions dragged(PanelPoint from, PanelPoint to, const PanelFractions& start = panel) {
    PanelDrag drag(area);
    EXPECT_TRUE(drag.press(start, from, 1000));
    EXPECT_EQ(drag.release(to, 2000), Result::Changed);
    return drag.getPanel();
}

void expectPlace(const PanelFractions& place, double left, double top, double right, double bottom) {
    EXPECT_NEAR(place.left, left, 1e-9);
    EXPECT_NEAR(place.top, top, 1e-9);
    EXPECT_NEAR(place.right, right, 1e-9);
    EXPECT_NEAR(place.bottom, bottom, 1e-9);
}

TEST(PanelDrag, theQuartersMoveTheirEdgesAndTheMiddleTheWhole) {
    expectPlace(dragged({0.22, 0.4}, {0.12, 0.9}), 0.1, 0.2, 0.6, 0.6);
    expectPlace(dragged({0.58, 0.4}, {0.68, 0.4}), 0.2, 0.2, 0.7, 0.6);
    expectPlace(dragged({0.4, 0.22}, {0.9, 0.12}), 0.2, 0.1, 0.6, 0.6);
    expectPlace(dragged({0.4, 0.58}, {0.4, 0.48}), 0.2, 0.2, 0.6, 0.5);
    expectPlace(dragged({0.22, 0.58}, {0.32, 0.68}), 0.3, 0.2, 0.6, 0.7);
    expectPlace(dragged({0.35, 0.45}, {0.45, 0.55}), 0.3, 0.3, 0.7, 0.7);
}

TEST(PanelDrag, edgesNeverCrossAndStayOnTheScreen) {
    const PanelFractions crossed = dragged({0.22, 0.22}, {0.99, 0.99});
    EXPECT_LT(crossed.left, crossed.right);
    EXPECT_LT(crossed.top, crossed.bottom);
    EXPECT_DOUBLE_EQ(crossed.right, 0.6);
    expectPlace(dragged({0.58, 0.58}, {3.0, 3.0}), 0.2, 0.2, 1.0, 1.0);
    expectPlace(dragged({0.35, 0.45}, {-9.0, 9.0}), 0.0, 0.6, 0.4, 1.0);
    // What was beyond may stay, and goes no further.
    const PanelFractions beyond{0.5, 0.0, 1.001, 1.0};
    expectPlace(dragged({0.7, 0.6}, {0.9, 0.6}, beyond), 0.5, 0.0, 1.001, 1.0);
    const PanelFractions tiny{0.5, 0.5, 0.501, 0.501};
    EXPECT_LE(dragged({0.5001, 0.5001}, {0.9, 0.9}, tiny).left, 0.501);
}

TEST(PanelDrag, lettingGoOnTheHandleMakesASquareOfPixels) {
    PanelDrag drag(area);
    ASSERT_TRUE(drag.press(panel, {0.4, 0.4}, 1000));
    EXPECT_FALSE(drag.move({0.41, 0.41}, 1100)) << "the handle doesn't drag";
    EXPECT_EQ(drag.release({0.41, 0.41}, 1200), Result::Changed);
    expectPlace(drag.getPanel(), 0.3, 0.2, 0.5, 0.6);
    ASSERT_TRUE(drag.press(panel, {0.4, 0.4}, 9000));
    drag.release({0.55, 0.4}, 9900);
    expectPlace(drag.getPanel(), 0.2, 0.2, 0.6, 0.6);
}

TEST(PanelDrag, aDoubleClickOnTheHandleFillsTheArea) {
    PanelDrag drag(area);
    const PanelFractions wide{0.0, 0.4, 1.0, 0.5};
    ASSERT_TRUE(drag.press(wide, {0.46, 0.45}, 1000));
    drag.release({0.46, 0.45}, 1100);
    const PanelFractions square = drag.getPanel();
    ASSERT_TRUE(drag.press(square, {0.46, 0.45}, 1300)) << "the square doesn't reach there any more";
    EXPECT_EQ(drag.release({0.46, 0.45}, 1400), Result::Changed);
    expectPlace(drag.getPanel(), 0, 0, 1, 1);
    // Too late, or elsewhere: two single clicks.
    ASSERT_TRUE(drag.press(panel, {0.4, 0.4}, 5000));
    drag.release({0.4, 0.4}, 5100);
    drag.press(panel, {0.4, 0.4}, 5900);
    drag.release({0.4, 0.4}, 6000);
    expectPlace(drag.getPanel(), 0.3, 0.2, 0.5, 0.6);
}

TEST(PanelDrag, movesAreSampledAndTapsChangeNothing) {
    PanelDrag drag(area);
    EXPECT_FALSE(drag.press(panel, {0.7, 0.4}, 1000)) << "outside";
    EXPECT_EQ(drag.release({0.7, 0.4}, 1000), Result::Nothing);
    ASSERT_TRUE(drag.press(panel, {0.3, 0.35}, 1000));
    EXPECT_FALSE(drag.move({0.5, 0.35}, 1031));
    EXPECT_TRUE(drag.move({0.4, 0.35}, 1032));
    EXPECT_FALSE(drag.move({0.5, 0.35}, 1050));
    expectPlace(drag.getPanel(), 0.3, 0.2, 0.7, 0.6);
    EXPECT_EQ(drag.release({0.3, 0.35}, 1100), Result::Changed) << "there and back is no tap";
    ASSERT_TRUE(drag.press(panel, {0.3, 0.35}, 5000));
    EXPECT_EQ(drag.release({0.302, 0.352}, 5100), Result::Tapped);
    expectPlace(drag.getPanel(), 0.2, 0.2, 0.6, 0.6);
}

} // namespace
