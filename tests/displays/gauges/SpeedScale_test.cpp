#include "displays/gauges/SpeedScale.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace skyvane {
namespace {

/// Digits of a fixed width and height.
class FixedDigits : public ITextMeasure {
public:
    irr::core::dimension2d<unsigned> measureNumber(int number) override {
        return {static_cast<unsigned>(13 * std::to_string(number).size()), 22};
    }
};

TEST(SpeedScale, needleAngles) {
    SpeedScale scale;
    EXPECT_EQ(scale.angleOf(40), 20.0);
    EXPECT_EQ(scale.angleOf(200), 340.0);
    EXPECT_EQ(scale.angleOf(120), 180.0);
    EXPECT_EQ(scale.angleOf(39), 0.0); // 20 / 40 of whole numbers
    scale.start = 8;
    EXPECT_EQ(scale.angleOf(5), 10.0); // 20 / 8 gives 2
    scale.start = 0;
    EXPECT_EQ(scale.angleOf(-3), 0.0);
    scale.start = 200;
    EXPECT_EQ(scale.angleOf(50), 340.0);
    scale.start = 40;
    scale.speedFallOff = 0.5;
    EXPECT_NEAR(scale.angleOf(80), 180.0, 1e-12);
}

TEST(SpeedScale, neverShowsAnOverspeedAsALowSpeed) {
    const SpeedScale scale;
    double last = -1.0;
    for (double speed = 0; speed < 1000; speed += 1) {
        const double angle = scale.shownAngleOf(speed);
        EXPECT_GE(angle, last);
        EXPECT_LT(angle, 360.0);
        last = angle;
    }
    EXPECT_EQ(scale.shownAngleOf(200), 340.0);
}

TEST(SpeedScale, metricScaleStartsAndEndsOnTens) {
    const SpeedScale metric = SpeedScale().toMetric();
    EXPECT_EQ(metric.start, 80.0);
    EXPECT_EQ(metric.end, 380.0);
    EXPECT_NEAR(metric.greenEnd, 140 * 1.8519999984, 1e-9);
    EXPECT_LT(metric.blue, 0.0);
}

TEST(SpeedScale, ticksLeaveTheColouredLinesFree) {
    SpeedScale scale;
    scale.blue = 75;
    const std::vector<SpeedTick> ticks = layoutSpeedTicks(scale);
    EXPECT_EQ(ticks.size(), 33u - 2u);
    for (const SpeedTick& tick : ticks) {
        EXPECT_NE(tick.speed, 200);
        EXPECT_NE(tick.speed, 75);
        EXPECT_EQ(tick.major, tick.speed % 10 == 0);
        const double degrees = std::atan2(tick.direction.X, -tick.direction.Y) * 57.29577951308232;
        EXPECT_NEAR(std::remainder(degrees - scale.angleOf(tick.speed), 360.0), 0.0, 1e-9);
        EXPECT_NEAR(tick.direction.getLength(), 1.0, 1e-12);
    }
}

TEST(SpeedScale, numbersStayInsideTheTicksAndOffTheirNeighbour) {
    FixedDigits digits;
    SpeedScale crowded;
    crowded.end = 400;
    for (const SpeedScale& scale : {SpeedScale(), crowded}) {
        const std::vector<SpeedLabel> labels = layoutSpeedLabels(scale, 128, digits);
        ASSERT_GT(labels.size(), 5u);
        for (size_t i = 0; i < labels.size(); ++i) {
            EXPECT_EQ((labels[i].speed - 40) % 20, 0);
            for (int x : {labels[i].box.UpperLeftCorner.X, labels[i].box.LowerRightCorner.X}) {
                for (int y : {labels[i].box.UpperLeftCorner.Y, labels[i].box.LowerRightCorner.Y})
                    EXPECT_LE(std::hypot(x - 128, y - 128), 0.75 * 128 + 1.0);
            }
            if (i > 0) {
                EXPECT_FALSE(labels[i - 1].box.isRectCollided(labels[i].box));
            }
        }
    }
    EXPECT_EQ(layoutSpeedLabels(SpeedScale(), 128, digits).size(), 9u);
    EXPECT_LT(layoutSpeedLabels(crowded, 128, digits).size(), 19u);
}

TEST(SpeedScale, absurdNumbersGiveADrawableScale) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    SpeedScale absurd;
    absurd.start = -1e300;
    absurd.end = std::numeric_limits<double>::infinity();
    absurd.red = nan;
    absurd.speedFallOff = nan;
    absurd.deltaDesc = 0;
    const SpeedScale drawable = makeDrawable(absurd);
    FixedDigits digits;
    EXPECT_LE(layoutSpeedTicks(drawable).size(), 401u);
    EXPECT_LE(layoutSpeedLabels(drawable, 128, digits).size(), 101u);
    EXPECT_EQ(drawable.deltaDesc, 20);
    absurd.end = 1e9;
    EXPECT_LE(layoutSpeedTicks(makeDrawable(absurd)).size(), 401u);
    EXPECT_TRUE(std::isfinite(makeDrawable(absurd).angleOf(100)));
}

} // namespace
} // namespace skyvane
