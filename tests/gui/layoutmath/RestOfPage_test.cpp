#include "gui/layoutmath/RestOfPage.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

using Rect = irr::core::rect<int>;

TEST(RestOfPage, isTheLargestPartThatStaysFree) {
    const Rect wide(0, 50, 1200, 650), upright(0, 50, 700, 1200);
    EXPECT_EQ(restOfPage(wide, {800, 60, 1190, 260}, 10), Rect(0, 50, 790, 650)) << "beside it";
    EXPECT_EQ(restOfPage(upright, {450, 60, 690, 180}, 10), Rect(0, 190, 700, 1200)) << "below it";
    EXPECT_EQ(restOfPage(wide, {1000, 600, 1300, 700}, 0), Rect(0, 50, 1200, 600)) << "above it";
    EXPECT_EQ(restOfPage(wide, {-20, 0, 100, 700}, 5), Rect(105, 50, 1200, 650));
}

TEST(RestOfPage, isThePageWhereNothingOrEverythingIsCovered) {
    const Rect page(10, 10, 110, 210);
    for (const Rect& cover : {Rect(), Rect(110, 10, 200, 210), Rect(0, 0, 500, 500), Rect(60, 60, 40, 40)})
        EXPECT_EQ(restOfPage(page, cover, 10), page);
}

} // namespace
} // namespace skyvane
