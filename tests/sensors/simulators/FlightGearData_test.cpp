#include "sensors/simulators/FlightGearData.h"

#include <gtest/gtest.h>

#include <string>

namespace skyvane {
namespace {

TEST(FlightGearData, readsBigEndianFieldsAtTheirOffsets) {
    // Every double is its place in the table counted from 1, every whole number 256 times the place plus 1.
    const unsigned char leading[20][2] = {{0x3f, 0xf0}, {0x40, 0x00}, {0x40, 0x08}, {0x40, 0x10}, {0x40, 0x14},
                                          {0x40, 0x18}, {0x40, 0x1c}, {0x40, 0x20}, {0x40, 0x22}, {0x40, 0x24},
                                          {0x40, 0x26}, {0x40, 0x28}, {0x40, 0x2a}, {0x40, 0x2c}, {0x40, 0x2e},
                                          {0x40, 0x30}, {0x40, 0x31}, {0x40, 0x32}};
    std::string bytes(168, '\0');
    for (size_t i = 0; i < 16; ++i)
        bytes.replace(8 * i, 2, reinterpret_cast<const char*>(leading[i]), 2);
    for (size_t i = 0; i < 6; ++i) {
        bytes[128 + 4 * i + 2] = static_cast<char>(i + 1);
        bytes[128 + 4 * i + 3] = 1;
    }
    bytes.replace(152, 2, reinterpret_cast<const char*>(leading[16]), 2);
    bytes.replace(160, 2, reinterpret_cast<const char*>(leading[17]), 2);

    FlightGearData data;
    ASSERT_TRUE(data.parse(bytes.data(), bytes.size()));
    EXPECT_EQ(data.pitchRadians, 1);
    EXPECT_EQ(data.yawRadians, 2);
    EXPECT_EQ(data.rollRadians, 3);
    EXPECT_EQ(data.rates[2], 6);
    EXPECT_EQ(data.accelerations[0], 7);
    EXPECT_EQ(data.accelerations[2], 9);
    EXPECT_EQ(data.groundTrackDegrees, 10);
    EXPECT_EQ(data.groundSpeedKnots, 11);
    EXPECT_EQ(data.altitudeMetres, 12);
    EXPECT_EQ(data.latitudeDegrees, 13);
    EXPECT_EQ(data.longitudeDegrees, 14);
    EXPECT_EQ(data.verticalSpeedMetresPerSecond, 15);
    EXPECT_EQ(data.temperatureCelsius, 16);
    EXPECT_EQ(data.hour, 257);
    EXPECT_EQ(data.minute, 513);
    EXPECT_EQ(data.second, 769);
    EXPECT_EQ(data.day, 1025);
    EXPECT_EQ(data.month, 1281);
    EXPECT_EQ(data.year, 1537);
    EXPECT_EQ(data.pressureMillibars, 17);
    EXPECT_EQ(data.indicatedAirSpeedKnots, 18);
}

TEST(FlightGearData, anyOtherLengthChangesNothing) {
    FlightGearData data;
    data.altitudeMetres = 5;
    const std::string bytes(400, 'x');
    for (size_t length = 0; length <= bytes.size(); ++length)
        EXPECT_EQ(data.parse(bytes.data(), length), length == 168) << length;
    data.altitudeMetres = 5;
    EXPECT_FALSE(data.parse(bytes.data(), 167));
    EXPECT_EQ(data.altitudeMetres, 5);
}

} // namespace
} // namespace skyvane
