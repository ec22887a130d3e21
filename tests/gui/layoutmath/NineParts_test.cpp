#include "gui/layoutmath/NineParts.h"

#include <gtest/gtest.h>

namespace skyvane {

using Rect = irr::core::rect<int>;

TEST(NineParts, CornersTakeTheSmallerShareRoundedAndHalfAtMost) {
    EXPECT_EQ(14, cornerSize(Rect(0, 0, 121, 47), 720, 0.3f, 1.0f));
    EXPECT_EQ(13, cornerSize(Rect(0, 0, 500, 400), 720, 0.3f, 0.018f));
    EXPECT_EQ(0, cornerSize(Rect(10, 10, 5, 5), 720, 0.3f, 0.018f));
    const NineParts parts = nineParts(Rect(100, 50, 130, 250), 20);
    EXPECT_EQ((std::array<int, 4>{100, 115, 115, 130}), parts.x);
    EXPECT_EQ((std::array<int, 4>{50, 70, 230, 250}), parts.y);
}

} // namespace skyvane
