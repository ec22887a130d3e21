#include "gui/layoutmath/FingerScroll.h"

#include <cmath>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

constexpr double frame = 0.04;

/// A finger that comes down at 500 and moves by so many pixels in each of ten frames; the time when it leaves.
double fling(FingerScroll& scroll, int pixelsPerFrame) {
    double now = 10.0;
    scroll.update(now);
    scroll.press(500);
    for (int i = 1; i <= 10; ++i) {
        scroll.move(500 + i * pixelsPerFrame);
        scroll.update(now += frame);
    }
    scroll.release(now);
    return now;
}

} // namespace

TEST(FingerScroll, FollowsTheFingerWithinTheContent) {
    FingerScroll scroll;
    scroll.setLengths(1000, 400);
    scroll.press(300);
    scroll.move(200);
    EXPECT_EQ(-100, scroll.getOffset());
    EXPECT_FLOAT_EQ(100.0f / 600.0f, scroll.getShare());
    scroll.move(-5000);
    EXPECT_EQ(-600, scroll.getOffset());
    scroll.move(400);
    EXPECT_EQ(0, scroll.getOffset());
    EXPECT_FLOAT_EQ(0.4f, scroll.getVisibleShare());
}

TEST(FingerScroll, OnlyMoreThanAHundredthOfTheViewIsADrag) {
    FingerScroll scroll;
    scroll.setLengths(1000, 400);
    scroll.press(300);
    scroll.move(296);
    EXPECT_FALSE(scroll.isDragged());
    scroll.move(295);
    EXPECT_TRUE(scroll.isDragged());
    scroll.move(300);
    EXPECT_TRUE(scroll.isDragged()) << "coming back doesn't make it a click";
    scroll.press(300);
    EXPECT_FALSE(scroll.isDragged());
}

TEST(FingerScroll, AContentShorterThanTheViewStays) {
    FingerScroll scroll;
    scroll.setLengths(300, 400);
    scroll.press(300);
    scroll.move(100);
    EXPECT_EQ(0, scroll.getOffset());
    scroll.moveBy(-50);
    scroll.setShare(1.0f);
    EXPECT_EQ(0, scroll.getOffset());
    EXPECT_FLOAT_EQ(0.0f, scroll.getShare());
    EXPECT_FALSE(scroll.canScroll());
}

// Against the sum of the glide's formula, written out.
TEST(FingerScroll, GlidesWithTheThirdPowerForASecondAtMost) {
    FingerScroll scroll;
    scroll.setLengths(100000, 400);
    const double released = fling(scroll, -20);
    double expected = -200.0, now = released;
    while (scroll.update(now += frame)) {
        const double left = std::max(0.0, 1.0 - (now - released));
        expected += frame * (-20.0 / frame) * left * left * left;
        ASSERT_NEAR(expected, scroll.getOffset(), 1.0) << now - released;
    }
    EXPECT_LT(now - released, 1.0 + frame);
    EXPECT_GT(now - released, 0.5);
    const int rest = scroll.getOffset();
    EXPECT_FALSE(scroll.update(now + 5.0));
    EXPECT_EQ(rest, scroll.getOffset());
}

TEST(FingerScroll, AGlideEndsAtTheEndAndAtANewFinger) {
    FingerScroll scroll;
    scroll.setLengths(700, 400);
    double now = fling(scroll, -25);
    while (scroll.update(now += frame)) {
    }
    EXPECT_EQ(-300, scroll.getOffset());

    scroll.setLengths(100000, 400);
    now = fling(scroll, -25);
    scroll.update(now += frame);
    scroll.press(100);
    const int held = scroll.getOffset();
    EXPECT_FALSE(scroll.update(now += frame));
    EXPECT_EQ(held, scroll.getOffset());
}

TEST(FingerScroll, ARestingFingerLeavesNoGlide) {
    FingerScroll scroll;
    scroll.setLengths(100000, 400);
    scroll.press(500);
    scroll.move(100);
    scroll.update(1.0);
    scroll.update(1.04);
    scroll.release(1.05);
    EXPECT_FALSE(scroll.update(1.09));
    EXPECT_EQ(-400, scroll.getOffset());
}

TEST(FingerScroll, AShrinkingContentPullsTheOffsetBack) {
    FingerScroll scroll;
    scroll.setLengths(1000, 400);
    scroll.setShare(1.0f);
    scroll.setLengths(500, 400);
    EXPECT_EQ(-100, scroll.getOffset());
    scroll.setShare(std::nanf(""));
    EXPECT_EQ(-100, scroll.getOffset());
}

} // namespace skyvane
