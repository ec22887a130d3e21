#include "sensors/simulators/XPlaneTraffic.h"

#include "sensors/records/Traffic_Data.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(XPlaneTraffic, theFirstZeroTellsTheCount) {
    Traffic_Data traffic;
    const auto countOf = [&](std::array<float, 8> values) {
        reallocTraffic(&traffic, values.data());
        return traffic.elements.size();
    };
    EXPECT_EQ(countOf({0, 0, 0, 0, 0, 0, 0, 0}), 1u);
    EXPECT_EQ(countOf({4, 0, 4, 4, 4, 4, 4, 4}), 2u);
    EXPECT_EQ(countOf({4, 4, 4, 4, 4, 4, 4, 0}), 8u);
    EXPECT_EQ(countOf({4, 4, 4, 4, 4, 4, 4, 4}), 8u);
    EXPECT_EQ(traffic.elements.at(7)->icaoAddress, 7u);
    traffic.elements[3]->squawk = 7000;
    countOf({4, 4, 4, 4, 4, 4, 4, 0});
    EXPECT_EQ(traffic.elements[3]->squawk, 7000) << "where the count stays, the elements stay";
    countOf({4, 4, 4, 4, 0, 0, 0, 0});
    EXPECT_EQ(traffic.elements[3]->squawk, 0);
}

TEST(XPlaneTraffic, storesWhatStandsBeforeTheFirstZero) {
    Traffic_Data traffic;
    XPlaneTraffic slots;
    EXPECT_TRUE(slots.takeLatitudes({0, 0, 0, 0, 0, 0, 0, 0}, 0.0, traffic));
    EXPECT_EQ(traffic.elements.at(0)->latitude, -360.0) << "a position of 0 isn't stored";
    EXPECT_TRUE(slots.takeLatitudes({42, 43, 0, 5, 0, 0, 0, 0}, 1.0, traffic));
    EXPECT_TRUE(slots.takeLongitudes({1, -2, 0, 5, 0, 0, 0, 0}, 1.0, traffic));
    EXPECT_TRUE(slots.takeAltitudes({999.5f, -0.5f, 0, 5, 0, 0, 0, 0}, traffic));
    ASSERT_EQ(traffic.elements.size(), 3u);
    EXPECT_EQ(traffic.elements[0]->latitude, 42.0);
    EXPECT_EQ(traffic.elements[1]->longitude, -2.0);
    EXPECT_EQ(traffic.elements[0]->altitude, 1000);
    EXPECT_EQ(traffic.elements[1]->altitude, -1) << "halves away from zero";
    EXPECT_EQ(traffic.elements[2]->latitude, -360.0);
    EXPECT_EQ(traffic.elements[0]->track, -360.0f) << "one position has no bearing";
}

TEST(XPlaneTraffic, trackFollowsTheBearingOfEachSlotsLastTwoPositions) {
    Traffic_Data traffic;
    XPlaneTraffic slots;
    const auto fly = [&](double seconds, float latitude0, float longitude0, float longitude1) {
        slots.takeLatitudes({latitude0, 10, 0, 0, 0, 0, 0, 0}, seconds, traffic);
        slots.takeLongitudes({longitude0, longitude1, 0, 0, 0, 0, 0, 0}, seconds, traffic);
    };
    fly(0.0, 42.0f, 1.0f, 5.0f);
    fly(1.0, 42.5f, 1.0f, 5.1f);
    EXPECT_NEAR(traffic.elements[0]->track, 0.0, 1e-3) << "due north, with one coordinate that stays";
    for (int i = 2; i < 40; ++i)
        fly(i, 42.5f, 1.0f + 0.01f * static_cast<float>(i), 5.0f + 0.1f * static_cast<float>(i));
    EXPECT_NEAR(traffic.elements[1]->track, 90.0, 0.1);
    EXPECT_NEAR(traffic.elements[0]->track, 90.0, 0.5);
    slots.forget();
    fly(100.0, 43.5f, 1.0f, 5.0f);
    EXPECT_NEAR(traffic.elements[0]->track, 90.0, 0.5) << "nothing new before a second position";
    fly(101.0, 43.4f, 0.9999f, 5.0f);
    EXPECT_NEAR(traffic.elements[0]->track, 180.0, 0.5) << "and nothing of the flight before";
}

TEST(XPlanePositionStack, keepsTheLastTwoPositions) {
    XPlanePositionStack stack;
    double degrees = -1.0;
    stack.OnNewLatitude(50.0);
    stack.OnNewLongitude(7.0);
    EXPECT_FALSE(stack.calculateHeading(degrees));
    stack.OnNewLatitude(50.0);
    stack.OnNewLongitude(7.0);
    EXPECT_FALSE(stack.calculateHeading(degrees)) << "the same position again is none";
    stack.OnNewLatitude(50.1);
    EXPECT_FALSE(stack.calculateHeading(degrees)) << "half a position";
    stack.OnNewLongitude(7.0);
    ASSERT_TRUE(stack.calculateHeading(degrees));
    EXPECT_NEAR(degrees, 0.0, 1e-6);
    stack.OnNewLatitude(50.0);
    EXPECT_FALSE(stack.calculateHeading(degrees));
    stack.OnNewLongitude(7.0);
    ASSERT_TRUE(stack.calculateHeading(degrees));
    EXPECT_NEAR(degrees, 180.0, 1e-6) << "from the second to the third";
}

} // namespace
} // namespace skyvane
