#include "displays/glide/GlideFormat.h"

#include "support/AllocationCounter.h"

#include <gtest/gtest.h>
#include <limits>

namespace skyvane {
namespace {

constexpr GlideUnits feet = GlideUnits::Nautical, metric = GlideUnits::Metric;
const double nan = std::numeric_limits<double>::quiet_NaN();

std::wstring text(const ShortText& shortText) {
    return std::wstring(shortText.view());
}
GlideNumber known(double value) {
    return {true, value, DialFlag::Good};
}

TEST(GlideFormat, everyNumberHasItsUnit) {
    EXPECT_EQ(text(formatGlideDistance(known(12.34), feet, L" ")), L"12.3 NM");
    EXPECT_EQ(text(formatGlideDistance(known(10.0), metric, L"\n")), L"18.5\nkm");
    EXPECT_EQ(text(formatGlideAltitude(known(304.8), feet, L" ")), L"1000 feet");
    EXPECT_EQ(text(formatGlideAltitude(known(304.8), metric, L" ")), L"305 m");
    EXPECT_EQ(text(formatGlideVerticalSpeed(known(-2.54), feet, L" ")), L"-500 feet/min");
    EXPECT_EQ(text(formatGlideVerticalSpeed(known(-2.54), metric, L" ")), L"-2.5 m/s");
    EXPECT_EQ(text(formatGlideSpeed(60, feet, L" ")), L"60 knots");
    EXPECT_EQ(text(formatGlideSpeed(60, metric, L" ")), L"111 km/h") << "111.12";
    EXPECT_EQ(text(formatArrivalAltitude(known(304.8), false, L" ")), L"+1000 ft MSL");
    EXPECT_EQ(text(formatArrivalAltitude(known(-304.8), true, L" ")), L"-305 m MSL");
    EXPECT_EQ(text(formatArrivalAltitude(known(-0.1), true, L" ")), L"+0 m MSL");
    EXPECT_EQ(text(formatAverageVerticalSpeed(known(1.27), false, L" ")), L"250 ft/min");
    EXPECT_EQ(text(formatAverageVerticalSpeed(known(-1.27), true, L" ")), L"-1.3 m/s");
}

TEST(GlideFormat, whatIsNotKnownIsNotAvailable) {
    const GlideNumber none;
    for (const ShortText& shown :
         {formatGlideDistance(none, feet, L" "), formatGlideDistance(known(1e300), feet, L" "),
          formatGlideAltitude(none, feet, L" "), formatGlideVerticalSpeed(none, metric, L" "),
          formatGlideSpeed(-1, feet, L" "), formatGradient(nan), formatGlideRatio(none),
          formatGlideRatio(known(20000.0)), formatArrivalAltitude(none, false, L" "),
          formatArrivalAltitude(known(nan), false, L" "), formatAverageVerticalSpeed(none, true, L" "),
          formatAverageVerticalSpeed(known(nan), true, L" ")})
        EXPECT_EQ(text(shown), L"n/A");
}

TEST(GlideFormat, aClimbHasTheSignBeforeTheRatio) {
    EXPECT_EQ(text(formatGradient(0.025)), L"1 : 40");
    EXPECT_EQ(text(formatGradient(-0.025)), L"-1 : 40");
    EXPECT_EQ(text(formatGradient(0.107)), L"1 : 9.3");
    EXPECT_EQ(text(formatGradient(0.1002)), L"1 : 10") << "9.98";
    EXPECT_EQ(text(formatGradient(4.0)), L"1 : 0.3");
    EXPECT_EQ(text(formatGradient(noGradient)), L"n/A");
    EXPECT_EQ(text(formatGradient(0.0)), L"n/A");
    EXPECT_EQ(text(formatGradient(1e-9)), L"n/A");
    EXPECT_EQ(text(formatGlideRatio(known(12.4))), L"1:12");
    EXPECT_EQ(text(formatGlideRatio(known(-12.4))), L"1:-12");
}

TEST(GlideFormat, anAltitudeAboveIsWholeAndOnlyWithADestination) {
    EXPECT_EQ(text(calcAltAboveString(true, metric, 123.5)), L"124");
    EXPECT_EQ(text(calcAltAboveString(true, feet, -304.8)), L"-1000");
    EXPECT_EQ(text(calcAltAboveString(true, metric, -999000.0)), L"-999000");
    EXPECT_EQ(text(calcAltAboveString(true, metric, -999000.1)), L"n/A");
    EXPECT_EQ(text(calcAltAboveString(true, feet, noAltitudeAbove)), L"n/A");
    EXPECT_EQ(text(calcAltAboveString(false, metric, 123.0)), L"n/A");
    EXPECT_EQ(text(calcAltAboveString(true, metric, nan)), L"n/A");
}

TEST(GlideFormat, theTitleNamesTheDestinationAndItsUnit) {
    EXPECT_EQ(text(formatTableTitle(L"Northcape", feet, L" ")), L"Altitude above destination Northcape (feet)");
    EXPECT_EQ(text(formatTableTitle(L"", metric, L" ")), L"Altitude above destination - (m)");
    const std::wstring longName(63, L'\u00e9');
    EXPECT_EQ(text(formatTableTitle(longName.c_str(), feet, L" ")),
              L"Altitude above destination " + std::wstring(21, L'\u00e9') + L"... (feet)");
}

TEST(GlideFormat, units) {
    EXPECT_EQ(parseGlideUnits("km|m|m/s"), metric);
    EXPECT_EQ(parseGlideUnits("NM|feet|feet/min"), feet);
    EXPECT_EQ(parseGlideUnits("furlongs"), feet);
}

TEST(GlideFormat, aRatioIsTakenAsAPilotWritesIt) {
    for (const wchar_t* forty : {L"40", L"40.0", L" 1:40 ", L"1 : 40", L"40,0"})
        EXPECT_EQ(parseInverseGlideRatio(forty), 40.0) << forty;
    EXPECT_EQ(parseInverseGlideRatio(L"9,35"), 9.35);
    EXPECT_EQ(parseInverseGlideRatio(L"0"), 0.0);
    EXPECT_EQ(parseInverseGlideRatio(L".5"), 0.5);
    for (const wchar_t* none : {L"", L" ", L"-4", L"1:", L"2:40", L"40:1", L"1:1:2", L"nan", L"inf", L"4x", L"1e3",
                                L".", L"1.2.3", L"1000", L"99999999999999999999999"})
        EXPECT_FALSE(parseInverseGlideRatio(none)) << none;
    EXPECT_EQ(formatRatio(0.0), L"0.0");
    EXPECT_EQ(formatRatio(40.0), L"40.0");
    EXPECT_EQ(formatRatio(9.35), L"9.35");
}

TEST(GlideFormat, allocatesNothing) {
    const AllocationCounter counter;
    for (const double value : {-98765.4321, -1.0 / 3.0, 12345678.9}) {
        formatGlideDistance(known(value), metric, L" ");
        formatGlideVerticalSpeed(known(value), metric, L" ");
        formatGlideAltitude(known(value), feet, L" ");
        formatGradient(value);
        formatArrivalAltitude(known(value), false, L" ");
        calcAltAboveString(true, feet, value);
    }
    EXPECT_EQ(counter.count(), 0u);
}

} // namespace
} // namespace skyvane
