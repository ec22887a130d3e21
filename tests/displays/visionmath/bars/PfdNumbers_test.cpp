#include "displays/visionmath/bars/PfdFormat.h"
#include "displays/visionmath/bars/RollingDigits.h"
#include "displays/visionmath/bars/SpeedSource.h"
#include "displays/visionmath/bars/Tape.h"
#include "displays/visionmath/bars/TrackBug.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace skyvane {
namespace {

constexpr RollingDigits::Form feet{2, 20.0, 5}, knots{1, 1.0, 4};

/// What stands on the line that is read, with a blank for a place that is empty there.
std::wstring read(double value, const RollingDigits::Form& form) {
    const RollingDigits digits(value, form);
    std::wstring text = digits.isNegative() ? L"-" : L"";
    for (const auto& column : digits) {
        std::wstring nearest(static_cast<size_t>(column.digits), L' ');
        double best = 0.5;
        for (const auto& face : column)
            if (std::abs(face.offset) < best) {
                best = std::abs(face.offset);
                nearest = face.text;
            }
        text += nearest;
    }
    return text;
}

TEST(RollingDigits, ReadTheNearestFaceAroundEachCarry) {
    EXPECT_EQ(read(12345.0, feet), L"12340");
    EXPECT_EQ(read(12351.0, feet), L"12360");
    EXPECT_EQ(read(989.0, feet), L"  980");
    EXPECT_EQ(read(991.0, feet), L" 1000") << "all drums go over together";
    EXPECT_EQ(read(9989.0, feet), L" 9980");
    EXPECT_EQ(read(9991.0, feet), L"10000");
    EXPECT_EQ(read(19999.0, feet), L"20000");
    EXPECT_EQ(read(0.0, feet), L"   00");
    EXPECT_EQ(read(-1.0, feet), L"   00") << "no minus before a zero";
    EXPECT_EQ(read(-11.0, feet), L"-   20");
    EXPECT_EQ(read(-89.0, feet), L"-   80");
    EXPECT_EQ(read(-91.0, feet), L"-  100");
    EXPECT_EQ(read(-1345.0, feet), L"- 1340");
    EXPECT_EQ(read(999.4, knots), L" 999");
    EXPECT_EQ(read(999.6, knots), L"1000");
    EXPECT_EQ(read(9.6, knots), L"  10");
    EXPECT_EQ(read(0.0, knots), L"   0");
}

/// Every whole value and many between: the drums read the value rounded to their step, and faces never overlap.
TEST(RollingDigits, AgreeWithPlainRounding) {
    for (double value = -2100.0; value < 12100.0; value += 1.7) {
        std::wstring plain;
        const long rounded = std::lround(std::floor(value / 20.0 + 0.5) * 20.0);
        plain = std::to_wstring(std::labs(rounded));
        if (plain.size() < 2)
            plain = L"0" + plain;
        plain = (rounded < 0 ? L"-" : L"") + std::wstring(5 - plain.size(), L' ') + plain;
        EXPECT_EQ(read(value, feet), plain) << value;
        for (const auto& column : RollingDigits(value, feet))
            for (size_t i = 1; i < column.count; ++i)
                EXPECT_NEAR(std::abs(column.faces[i].offset - column.faces[i - 1].offset), 1.0, 1e-9) << value;
    }
}

TEST(RollingDigits, TurnUpwardsWithARisingValue) {
    const auto offsetOf = [](double value, size_t column, wchar_t first) {
        const RollingDigits digits(value, feet);
        for (const auto& face : *(digits.begin() + column))
            if (face.text[0] == first)
                return face.offset;
        return std::nan("");
    };
    EXPECT_NEAR(offsetOf(1285.0, 2, L'3'), 0.75, 1e-9);
    EXPECT_NEAR(offsetOf(1285.0, 2, L'2'), -0.25, 1e-9);
    EXPECT_NEAR(offsetOf(-1285.0, 2, L'3'), -0.75, 1e-9) << "more below zero comes from below";
    EXPECT_EQ(offsetOf(1280.0, 2, L'2'), 0.0);
}

TEST(RollingDigits, ShowNothingThatDoesNotFit) {
    for (const double bad : {99990.0, -99990.0, 1e300, std::nan(""), std::numeric_limits<double>::infinity()}) {
        EXPECT_FALSE(RollingDigits::canShow(bad, feet)) << bad;
        const RollingDigits digits(bad, feet);
        EXPECT_EQ(digits.begin(), digits.end());
    }
    EXPECT_TRUE(RollingDigits::canShow(99970.0, feet));
}

TEST(Tape, PlacesMarksAndThinsThemOut) {
    const Tape tape{104.0, 40.0, 600.0, 200.0}; // upwards, 10 pixels a unit
    EXPECT_DOUBLE_EQ(tape.at(104.0), 400.0);
    EXPECT_DOUBLE_EQ(tape.at(114.0), 300.0);
    EXPECT_DOUBLE_EQ(tape.clampedAt(500.0), 200.0);
    EXPECT_DOUBLE_EQ(tape.clampedAt(-500.0), 600.0);
    EXPECT_EQ(tape.getFirstStep(5.0), 16);
    EXPECT_EQ(tape.getLastStep(5.0), 25);
    EXPECT_EQ(chooseStep(10.0, 10.0, 60.0), 10.0);
    EXPECT_EQ(chooseStep(10.0, 2.0, 60.0), 50.0);
    EXPECT_EQ(chooseStep(10.0, 1e-9, 60.0), 1000.0) << "ends somewhere";
}

TEST(TrackBug, StopsAtTheEdgeThatIsNearer) {
    EXPECT_NEAR(placeTrackBug(352.0, 4.0, 40.0).offsetDegrees, 12.0, 1e-9) << "through north";
    EXPECT_FALSE(placeTrackBug(352.0, 12.0, 40.0).isBeyond) << "on the edge is in the band";
    const TrackBug right = placeTrackBug(352.0, 12.1, 40.0);
    EXPECT_TRUE(right.isBeyond && !right.isLeft);
    EXPECT_EQ(right.offsetDegrees, 20.0);
    const TrackBug left = placeTrackBug(5.0, 300.0, 40.0);
    EXPECT_TRUE(left.isBeyond && left.isLeft);
    EXPECT_EQ(left.offsetDegrees, -20.0);
    const TrackBug behind = placeTrackBug(0.0, 180.0, 40.0);
    EXPECT_TRUE(behind.isBeyond && !behind.isLeft);
    EXPECT_FALSE(placeTrackBug(720.0, -355.0, 40.0).isBeyond);
}

TEST(SpeedSource, GroundSpeedStandsInOnlyWhereThereIsNoAirSpeed) {
    PfdReadings readings;
    readings.airSpeedKnots = {100.0, DialFlag::Good};
    readings.hasAirSpeed = true;
    readings.groundSpeedKnots = {90.0, DialFlag::Doubtful};
    EXPECT_EQ(std::wstring(chooseSpeed(readings).title), L"KIAS");
    EXPECT_EQ(chooseSpeed(readings).value, 100.0);
    readings.airSpeedKnots.value = 15.0;
    EXPECT_FALSE(chooseSpeed(readings).isGroundSpeed);
    readings.airSpeedKnots.value = 14.0;
    EXPECT_TRUE(chooseSpeed(readings).isGroundSpeed);
    EXPECT_EQ(std::wstring(chooseSpeed(readings).title), L"GroundSpeed");
    EXPECT_EQ(chooseSpeed(readings).flag, DialFlag::Doubtful) << "with the trust in it";
    readings.groundSpeedKnots.flag = DialFlag::Failed;
    EXPECT_EQ(chooseSpeed(readings).value, 14.0);
    readings.groundSpeedKnots.flag = DialFlag::Good;
    readings.airSpeedKnots = {100.0, DialFlag::Failed};
    EXPECT_FALSE(chooseSpeed(readings).isGroundSpeed) << "a failure isn't hidden behind another speed";
    EXPECT_FALSE(isValueShown(chooseSpeed(readings).flag));
    readings.hasAirSpeed = false;
    EXPECT_TRUE(chooseSpeed(readings).isGroundSpeed);
    readings.metric = true;
    EXPECT_EQ(std::wstring(chooseSpeed(readings).title), L"GS km/h");
    readings.airSpeedKnots = {100.0, DialFlag::Good};
    readings.hasAirSpeed = true;
    EXPECT_EQ(std::wstring(chooseSpeed(readings).title), L"IAS km/h");
    EXPECT_NEAR(chooseSpeed(readings).value, 185.2, 0.01);
    EXPECT_EQ(toSpeedUnit(105.0, true), 194.0) << "cut, not rounded";
    EXPECT_EQ(toSpeedUnit(105.0, false), 105.0);
}

TEST(PfdFormat, WritesWhatAPilotReads) {
    const auto text = [](const ShortText& line) { return std::wstring(line.view()); };
    EXPECT_EQ(text(formatGroundSpeedLine(97.5, DialFlag::Good, false)), L"GS kts: 98");
    EXPECT_EQ(text(formatGroundSpeedLine(97.9, DialFlag::Good, true)), L"GS km/h: 181") << "181.3, cut";
    EXPECT_EQ(text(formatGroundSpeedLine(97.9, DialFlag::Failed, true)), L"GS km/h: ---");
    EXPECT_EQ(text(formatAboveGroundLine(350.0, true, false)), L"AGL: 1150 ft");
    EXPECT_EQ(text(formatAboveGroundLine(350.0, true, true)), L"AGL: 351 m");
    EXPECT_EQ(text(formatAboveGroundLine(350.0, false, true)), L"AGL: n/A");
    EXPECT_EQ(text(formatQnhLine(1012.6)), L"QNH / 1013 hPa");
    EXPECT_EQ(text(formatInchesLine(1013.25)), L"29.92 inHg");
    EXPECT_EQ(text(formatVerticalSpeed(3.3, false)), L"+650");
    EXPECT_EQ(text(formatVerticalSpeed(-3.3, true)), L"-3.3");
    EXPECT_EQ(text(formatVerticalSpeed(-0.02, false)), L"0") << "no sign without a speed";
    EXPECT_EQ(text(formatVerticalSpeed(-0.02, true)), L"0.0");
    EXPECT_EQ(text(formatDirection(359.7)), L"360");
    EXPECT_EQ(text(formatDirection(0.2)), L"360");
    EXPECT_EQ(text(formatDirection(-1.0)), L"359");
    EXPECT_EQ(text(formatDirection(7.0)), L"007");
    EXPECT_EQ(text(formatFixDistance(12.34, false)), L"12.3 NM");
    EXPECT_EQ(text(formatFixDistance(12.34, true)), L"22.9 km");
    EXPECT_EQ(text(formatFixDistance(99.97, false)), L"100 NM");
    EXPECT_EQ(calcLowShade(500.0), 0.0);
    EXPECT_NEAR(calcLowShade(300.0), 0.5, 1e-9);
    EXPECT_EQ(calcLowShade(100.0), 1.0);
}

} // namespace
} // namespace skyvane
