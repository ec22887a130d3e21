#include "gui/layoutmath/WeightedLayout.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace skyvane {

using Rect = irr::core::rect<int>;

TEST(WeightedLayout, WithoutScrollingTheWeightsShareTheWholeLength) {
    WeightedLayout layout({true, false}, 100, 21, 3.0f);
    EXPECT_EQ(Rect(0, 0, 33, 20), layout.next(1.0f, 1.0f, false, 0));
    EXPECT_EQ(Rect(33, 0, 67, 20), layout.next(1.0f, 1.0f, false, 0));
    EXPECT_EQ(Rect(67, 0, 100, 20), layout.next(1.0f, 1.0f, false, 0)) << "no pixel is lost by rounding";
    EXPECT_EQ(100, layout.getContentLength());
}

TEST(WeightedLayout, WithScrollingAWeightIsAShareOfTheView) {
    WeightedLayout layout({false, true}, 51, 200, 3.0f);
    EXPECT_EQ(Rect(0, -30, 50, 170), layout.next(1.0f, 1.0f, false, -30));
    EXPECT_EQ(Rect(0, 170, 50, 270), layout.next(0.5f, 1.0f, false, -30));
    EXPECT_EQ(300, layout.getContentLength());
    EXPECT_EQ(200, layout.getViewLength());
}

TEST(WeightedLayout, AKeptRatioIsTheLargestInsideAndCentred) {
    WeightedLayout layout({true, false}, 200, 101, 1.0f);
    EXPECT_EQ(Rect(50, 0, 150, 100), layout.next(1.0f, 1.0f, true, 0));
}

TEST(WeightedLayout, AbsurdWeightsStayInPlace) {
    WeightedLayout none({false, false}, 50, 100, 0.0f);
    EXPECT_EQ(Rect(0, 0, 49, 0), none.next(0.0f, 1.0f, false, 0)) << "a sum of 0 scales by 1";
    WeightedLayout odd({false, true}, 0, 0, 1.0f);
    EXPECT_EQ(Rect(0, 0, 0, 0), odd.next(std::numeric_limits<float>::quiet_NaN(), 0.0f, true, 0));
    EXPECT_EQ(Rect(0, 0, 0, 0), odd.next(-5.0f, -1.0f, true, 0));
}

} // namespace skyvane
