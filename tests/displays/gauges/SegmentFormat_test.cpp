#include "displays/gauges/SegmentFormat.h"
#include "displays/gauges/SegmentType.h"
#include "sensors/records/GPS_Data.h"

#include <gtest/gtest.h>
#include <limits>
#include <set>

namespace skyvane {
namespace {

const double nan = std::numeric_limits<double>::quiet_NaN();
const double infinite = std::numeric_limits<double>::infinity();

std::wstring text(const ShortText& shortText) {
    return std::wstring(shortText.view());
}

GPS_Data recordAt(int hour, int minute, int second) {
    GPS_Data record;
    record.timeAvailable = true;
    record.hour = hour;
    record.minute = minute;
    record.second = second;
    return record;
}

TEST(SegmentFormat, wholeNumbersRoundHalvesAwayAndHaveNoNegativeZero) {
    EXPECT_EQ(text(formatWhole(-0.4)), L"0");
    EXPECT_EQ(text(formatWhole(-0.5)), L"-1");
    EXPECT_EQ(text(formatWhole(2.5)), L"3");
    EXPECT_EQ(text(formatWhole(1e300)), L"2147483647");
    for (double value : {nan, infinite, -infinite})
        EXPECT_EQ(text(formatWhole(value)), L"n/A");
}

TEST(SegmentFormat, directions) {
    EXPECT_EQ(text(formatHeading(359.7)), L"360\u00B0");
    EXPECT_EQ(text(formatHeading(440.0)), L"80\u00B0");
    EXPECT_EQ(text(formatHeading(nan)), L"n/A");
    EXPECT_EQ(text(formatBearing(-1.0)), L"n/A") << "no procedure";
    EXPECT_EQ(text(formatBearing(-0.5)), L"n/A");
    EXPECT_EQ(text(formatBearing(-0.4)), L"0\u00B0");
    EXPECT_EQ(text(formatBearing(270.5)), L"271\u00B0");
}

TEST(SegmentFormat, timesOfArrival) {
    EXPECT_EQ(text(formatEte(-1)), L"n/A");
    EXPECT_EQ(text(formatEte(0)), L"00:00:00");
    EXPECT_EQ(text(formatEte(3723)), L"01:02:03");
    EXPECT_EQ(text(formatEte(360000)), L"100:00:00");
    EXPECT_EQ(text(formatEta(recordAt(23, 59, 58), 5)), L"00:00:03") << "around midnight";
    EXPECT_EQ(text(formatEta(recordAt(9, 5, 7), 2000000000)), L"12:38:27");
    EXPECT_EQ(text(formatEta(recordAt(9, 5, 7), -1)), L"n/A");
    GPS_Data untimed = recordAt(9, 5, 7);
    untimed.timeAvailable = false;
    EXPECT_EQ(text(formatEta(untimed, 60)), L"n/A");
    EXPECT_EQ(text(formatUtc(untimed)), L"n/A");
    EXPECT_EQ(text(formatUtc(recordAt(9, 5, 7))), L"09:05");
    EXPECT_EQ(text(formatUtc(recordAt(24, 0, 0))), L"n/A");
    EXPECT_EQ(text(formatUtc(recordAt(-1, -1, -1))), L"n/A");
}

TEST(SegmentFormat, satelliteRecords) {
    GPS_Data record;
    EXPECT_EQ(text(formatDate(record)), L"n/A");
    EXPECT_EQ(text(formatSatellites(record)), L"n/A");
    EXPECT_EQ(text(formatPosition(record)), L"n/A");
    record.dateAvailable = record.positionAvailable = true;
    record.month = 3;
    record.day = 7;
    record.year = 2031;
    record.satelliteCount = 9;
    record.latitude = 47.5;
    record.longitude = -8.25;
    EXPECT_EQ(text(formatDate(record)), L"03/07/2031");
    EXPECT_EQ(text(formatSatellites(record)), L"9");
    EXPECT_EQ(text(formatPosition(record)), L"47\u00B0 30.000' N\n8\u00B0 15.000' W");
    record.latitude = nan;
    record.month = 13;
    EXPECT_EQ(text(formatPosition(record)), L"n/A");
    EXPECT_EQ(text(formatDate(record)), L"n/A");
}

TEST(SegmentFormat, distancesSpeedsAndAltitudesInBothUnits) {
    EXPECT_EQ(text(formatDistance(-1.0, false)), L"n/A");
    EXPECT_EQ(text(formatDistance(-1e-9, false)), L"0");
    EXPECT_EQ(text(formatDistance(10.0, true)), L"19");
    EXPECT_EQ(text(formatGroundSpeed(100.0, false)), L"100");
    EXPECT_EQ(text(formatGroundSpeed(100.0, true)), L"185");
    EXPECT_EQ(text(formatAltitude(304.8, false)), L"1000");
    EXPECT_EQ(text(formatAltitude(-0.1, true)), L"0");
}

TEST(SegmentFormat, heightAboveGroundIsCoarseAndNeedsAnElevation) {
    EXPECT_EQ(text(formatHeightAboveGround(1000.0, 0.0, false)), L"n/A");
    EXPECT_EQ(text(formatHeightAboveGround(1000.0, -0.0001, false)), L"n/A");
    EXPECT_EQ(text(formatHeightAboveGround(1000.0, nan, false)), L"n/A");
    EXPECT_EQ(text(formatHeightAboveGround(500.0, 100.0, false)), L"1310"); // 1312.3
    EXPECT_EQ(text(formatHeightAboveGround(500.0, 100.0, true)), L"399");   // 400 is no multiple of 3
    EXPECT_EQ(text(formatHeightAboveGround(100.0, 101.0, true)), L"0");
}

TEST(SegmentFormat, measurementsBelowZeroAreNone) {
    EXPECT_EQ(text(formatMeasurement(-300.0)), L"n/A");
    EXPECT_EQ(text(formatMeasurement(0.0)), L"0");
    EXPECT_EQ(text(formatMeasurement(1013.25)), L"1013");
    EXPECT_EQ(text(formatMeasurement(nan)), L"n/A");
    EXPECT_EQ(text(formatPressureAltitude(1013.25, false)), L"0");
    EXPECT_EQ(text(formatPressureAltitude(900.0, false)), L"3244");
    EXPECT_EQ(text(formatPressureAltitude(900.0, true)), L"989");
    EXPECT_EQ(text(formatPressureAltitude(1e-9, false)), L"n/A");
}

TEST(SegmentType, namesAreReadBackAndUnknownOnesGiveTheFirst) {
    std::set<std::string> names;
    for (int i = 0; i < segmentTypeCount; ++i) {
        const auto type = static_cast<SegmentType>(i);
        EXPECT_EQ(parseSegmentType(nameOf(type)), type);
        names.insert(nameOf(type));
    }
    EXPECT_EQ(names.size(), 18u);
    for (const char* wrong : {"", "heading", "HEADING ", "ETE\0A"})
        EXPECT_NE(parseSegmentType(wrong), SegmentType::ETA);
    EXPECT_EQ(parseSegmentType("nonsense"), SegmentType::HEADING);
    EXPECT_EQ(segmentTypeList(),
              "HEADING;BEARING;ETE;ETA;DISTANCE;NEXTWPT;GROUNDSPEED;ALTITUDE;ALTITUDE_AGL;UTC;DATE;POSITION;SATCOUNT;"
              "PRESSURE_INSIDE;PRESSURE_OUTSIDE;TEMPERATURE_INSIDE;TEMPERATURE_OUTSIDE;PRESSURE_ALTITUDE_INSIDE");
}

TEST(SegmentType, portraitLabelsAreShorter) {
    EXPECT_STREQ(segmentLabel(SegmentType::ALTITUDE, false), L"Alt MSL:");
    EXPECT_STREQ(segmentLabel(SegmentType::ALTITUDE, true), L"MSL:");
    EXPECT_STREQ(segmentLabel(SegmentType::ALTITUDE_AGL, true), L"AGL:");
    EXPECT_STREQ(segmentLabel(SegmentType::HEADING, true), L"Track");
}

} // namespace
} // namespace skyvane
