#include "displays/gauges/LoadGauge.h"
#include "displays/gauges/ShortText.h"
#include "displays/gauges/TurnGauge.h"

#include <cmath>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(TurnGauge, aStandardRateTurnBanksTheSymbolTwentyDegrees) {
    EXPECT_NEAR(calcTurnRotation(3.0), -20.0, 1e-3); // to the right is clockwise
    EXPECT_NEAR(calcTurnRotation(-3.0), 20.0, 1e-3);
    EXPECT_EQ(calcTurnRotation(0.0), 0.0);
    EXPECT_GE(calcTurnRotation(1e9), -90.0);
}

TEST(TurnGauge, theBallLiesOnTheSideOfTheGravityWhateverItsSize) {
    EXPECT_EQ(calcSideways({0.0, 0.0, 0.0}), 0.0);
    EXPECT_NEAR(calcSideways({3.0, -4.0, 0.0}), 0.6, 1e-12);
    EXPECT_NEAR(calcSideways({-300.0, -400.0, 0.0}), -0.6, 1e-12);
    EXPECT_EQ(calcBallOffset(0.0), 0.0);
    EXPECT_NEAR(calcBallOffset(1.0), 0.3359 * (1.0 - std::exp(-1.732875)), 1e-12);
    for (double sideways : {0.01, 0.1, 0.5, 1.0}) {
        EXPECT_GT(calcBallOffset(sideways), 0.0);
        EXPECT_EQ(calcBallOffset(-sideways), -calcBallOffset(sideways));
        EXPECT_LT(calcBallOffset(sideways), 0.3);
    }
}

TEST(TurnGauge, theMarkOfTheSlipStripIsProportionalThenCreepsAndStaysOnIt) {
    EXPECT_NEAR(calcTurnMarkOffset(3.0), 84.0 / 747.0, 1e-12);
    EXPECT_NEAR(calcTurnMarkOffset(-6.0), -168.0 / 747.0, 1e-12);
    EXPECT_NEAR(calcTurnMarkOffset(6.0), calcTurnMarkOffset(6.0001), 1e-3) << "the two formulas meet";
    double last = 0.0;
    for (double rate = 0.0; rate < 60.0; rate += 0.1) {
        const double offset = calcTurnMarkOffset(rate);
        EXPECT_GE(offset, last - 1e-6);
        last = offset;
    }
    EXPECT_LT(calcTurnMarkOffset(1e6), 0.5);
    EXPECT_EQ(calcSlipOffset(-0.2), -0.1);
}

TEST(LoadGauge, levelFlightIsOneAndTheFormulasMeetAtFive) {
    EXPECT_NEAR(calcLoad(-9.81), 1.0, 1e-12);
    EXPECT_EQ(calcLoadRotation(0.0), 90.0);
    EXPECT_EQ(calcLoadRotation(1.0), 63.0);
    EXPECT_NEAR(calcLoadRotation(4.999999), 90.0 - 135.0, 1e-3);
    EXPECT_NEAR(calcLoadRotation(5.0), 90.0 - 135.0, 1e-3);
    EXPECT_NEAR(calcLoadRotation(-5.0), 90.0 + 135.0, 1e-3);
    EXPECT_GE(calcLoadRotation(1e6), -90.0);
}

TEST(ShortText, numbersHaveOneDecimalAndNoNegativeZero) {
    EXPECT_EQ(formatTurnRate(-2.45).view(), L"-2.5 \u00B0/s"); // halves away from zero
    EXPECT_EQ(formatTurnRate(-0.04).view(), L"0.0 \u00B0/s");
    EXPECT_EQ(formatLoad(1.04999).view(), L"1.0");
}

TEST(ShortText, isCutNotOverrun) {
    const std::wstring endless(500, L'x');
    const ShortText text = ShortText(L"a").append(endless);
    EXPECT_EQ(text.view(), L"a" + std::wstring(62, L'x'));
    EXPECT_EQ(text.c_str()[63], L'\0');
}

} // namespace
} // namespace skyvane
