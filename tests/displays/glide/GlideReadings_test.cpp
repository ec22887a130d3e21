#include "displays/glide/GlideReadings.h"

#include "sensors/SensorFakes.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/GroundSpeed_Data.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"
#include "support/AllocationCounter.h"

#include <gtest/gtest.h>
#include <limits>

namespace skyvane {
namespace {

using Readings = GliderReadings;
const double nan = std::numeric_limits<double>::quiet_NaN();

class GlideReadingsTest : public testing::Test {
protected:
    void SetUp() override {
        rig.load("SensorCount = 2\nD4 = 1\nD5 = 1\nD6 = 1\nD7 = 1\n[S1]\nFactoryIndex = 0\n");
        sensor = rig.sensor(1);
        ASSERT_NE(sensor, nullptr);
        sources.sensors = &rig.manager;
        sources.distanceNauticalMiles = 10.0;
        sources.hasElevation = true;
        sources.elevationFeet = 1000.0;
        sources.inverseGlideRatio = 20.0;
        sensor->put<Position_Data>(ISensorData::Position, -28.0, 42.0, 1u);
        fly(2000.0, 36.0, -1.852);
    }
    /// Metres, knots, metres per second: 36 knots are 18.52 m/s.
    void fly(double altitude, double groundSpeed, double verticalSpeed) {
        sensor->put<Altitude_Data>(ISensorData::Altitude, altitude, 1u);
        sensor->put<GroundSpeed_Data>(ISensorData::GroundSpeed, groundSpeed, 1u);
        sensor->put<VerticalSpeed_Data>(ISensorData::VerticalSpeed, verticalSpeed, 1u);
    }

    ManagerRig rig;
    FakeSensor* sensor = nullptr;
    GlideSources sources;
    GliderReader glider{60000};
    GlideInfoReader info;
};

TEST_F(GlideReadingsTest, aGlideIsReadFromTheSensors) {
    const Readings readings = glider.read(sources, 1000);
    EXPECT_EQ(readings.distance.value, 10.0);
    EXPECT_EQ(readings.altitude.value, 2000.0);
    EXPECT_EQ(readings.averageVerticalSpeed.value, -1.852);
    EXPECT_DOUBLE_EQ(readings.gradients[Readings::Current], 0.1);
    EXPECT_DOUBLE_EQ(readings.gradients[Readings::Average], 0.1);
    EXPECT_DOUBLE_EQ(readings.gradients[Readings::Best], 0.05);
    ASSERT_TRUE(readings.isTableValid);
    EXPECT_DOUBLE_EQ(readings.above[0][Readings::Current], 2000.0 - 1852.0 - 304.8);
    EXPECT_DOUBLE_EQ(readings.above[0][Readings::Best], 2000.0 - 926.0 - 304.8);
    EXPECT_DOUBLE_EQ(readings.above[1][Readings::Best], 2000.0 - 926.0 / 0.75 - 304.8);
    for (int column = 0; column < Readings::columns; ++column)
        for (int row = 1; row < Readings::factors; ++row)
            EXPECT_LT(readings.above[row][column], readings.above[row - 1][column]) << "a worse glide arrives lower";
}

TEST_F(GlideReadingsTest, theAverageIsThatOfItsTime) {
    glider.read(sources, 1000);
    fly(2000.0, 72.0, -3.852);
    const Readings readings = glider.read(sources, 2000);
    EXPECT_DOUBLE_EQ(readings.averageVerticalSpeed.value, -2.852);
    EXPECT_DOUBLE_EQ(readings.gradients[Readings::Average], 2.852 / (54.0 * 1852.0 / 3600.0));
    EXPECT_DOUBLE_EQ(readings.gradients[Readings::Current], 3.852 / 37.04);
}

TEST_F(GlideReadingsTest, tooSlowHasNoGradientButAnAltitude) {
    fly(2000.0, 4.9, -1.0);
    const Readings readings = glider.read(sources, 1000);
    EXPECT_EQ(readings.gradients[Readings::Current], noGradient);
    EXPECT_TRUE(readings.altitude.known);
    EXPECT_EQ(readings.above[3][Readings::Current], noAltitudeAbove);
    EXPECT_GT(readings.above[0][Readings::Best], 0.0);
    EXPECT_EQ(readings.tableFlags[Readings::Current], DialFlag::Good) << "no failure";
}

TEST_F(GlideReadingsTest, withoutADestinationThereIsNoTable) {
    sources.hasElevation = false;
    EXPECT_FALSE(glider.read(sources, 1000).isTableValid);
    sources.hasElevation = true;
    for (const double none : {-1.0, nan}) {
        sources.distanceNauticalMiles = none;
        const Readings readings = glider.read(sources, 1000);
        EXPECT_FALSE(readings.isTableValid);
        EXPECT_FALSE(readings.distance.known);
        EXPECT_EQ(readings.distance.flag, DialFlag::Good);
        EXPECT_EQ(readings.above[0][Readings::Best], noAltitudeAbove);
        EXPECT_FALSE(info.read(sources, 1000).altitude.known);
    }
}

TEST_F(GlideReadingsTest, anAircraftWithoutARatioHasNoBestGlide) {
    sources.inverseGlideRatio = -1.0;
    const Readings readings = glider.read(sources, 1000);
    EXPECT_EQ(readings.above[0][Readings::Best], noAltitudeAbove);
    EXPECT_NE(readings.above[0][Readings::Current], noAltitudeAbove);
    EXPECT_FALSE(info.read(sources, 1000).altitude.known);
}

TEST_F(GlideReadingsTest, aFailureLeavesNothingOfTheFormerValues) {
    glider.read(sources, 1000);
    info.read(sources, 1000);
    sensor->level = ISensor::WRONG;
    const Readings failed = glider.read(sources, 2000);
    for (const GlideNumber& number :
         {failed.distance, failed.altitude, failed.verticalSpeed, failed.averageVerticalSpeed}) {
        EXPECT_FALSE(number.known);
        EXPECT_EQ(number.flag, DialFlag::Failed);
    }
    EXPECT_FALSE(failed.isTableValid);
    EXPECT_EQ(failed.gradients[Readings::Average], noGradient);
    EXPECT_EQ(failed.tableFlags[Readings::Best], DialFlag::Failed);
    const GlideInfoReadings failedInfo = info.read(sources, 2000);
    for (const GlideNumber& number : {failedInfo.ratio, failedInfo.altitude, failedInfo.averageVerticalSpeed}) {
        EXPECT_FALSE(number.known);
        EXPECT_EQ(number.flag, DialFlag::Failed);
    }
    sensor->level = ISensor::GOOD;
    fly(1900.0, 36.0, -5.0);
    EXPECT_EQ(glider.read(sources, 3000).averageVerticalSpeed.value, -5.0) << "the average begins anew";
    EXPECT_EQ(info.read(sources, 3000).averageVerticalSpeed.value, -5.0);
}

TEST_F(GlideReadingsTest, whatIsNoNumberHasFailedAndIsNoPartOfAnAverage) {
    glider.read(sources, 1000);
    fly(nan, 36.0, std::numeric_limits<double>::infinity());
    const Readings readings = glider.read(sources, 2000);
    EXPECT_EQ(readings.altitude.flag, DialFlag::Failed);
    EXPECT_EQ(readings.averageVerticalSpeed.flag, DialFlag::Failed);
    fly(2000.0, 36.0, -2.0);
    EXPECT_EQ(glider.read(sources, 3000).averageVerticalSpeed.value, -2.0);
}

TEST_F(GlideReadingsTest, theWorstSensorDecides) {
    rig.load("SensorCount = 3\nD4 = 2\nD5 = 1\nD6 = 1\nD7 = 1\n[S1]\nFactoryIndex = 0\n[S2]\nFactoryIndex = 0\n");
    sensor = rig.sensor(1);
    fly(2000.0, 36.0, -1.852);
    rig.sensor(2)->put<Position_Data>(ISensorData::Position, -28.0, 42.0, 1u);
    rig.sensor(2)->level = ISensor::MAYBE_WRONG;
    const Readings readings = glider.read(sources, 1000);
    EXPECT_EQ(readings.distance.flag, DialFlag::Doubtful);
    EXPECT_EQ(readings.gradientFlags[Readings::Current], DialFlag::Good);
    EXPECT_EQ(readings.tableFlags[Readings::Current], DialFlag::Doubtful);
    EXPECT_EQ(info.read(sources, 1000).altitude.flag, DialFlag::Doubtful);
    EXPECT_EQ(info.read(sources, 1000).ratio.flag, DialFlag::Good);
    EXPECT_EQ(worseFlag(DialFlag::Simulated, DialFlag::Doubtful), DialFlag::Doubtful);
    EXPECT_EQ(worseFlag(DialFlag::Failed, DialFlag::Doubtful), DialFlag::Failed);
}

TEST_F(GlideReadingsTest, theInformationAveragesHalfAMinute) {
    for (unsigned now = 1000; now <= 31000; now += 500) {
        fly(1500.0, 100.0, now < 16000 ? -1.0 : -3.0);
        info.read(sources, now);
    }
    const GlideInfoReadings readings = info.read(sources, 31000);
    // 14.5 s at -1, half a second from -1 to -3, 15 s at -3.
    EXPECT_NEAR(readings.averageVerticalSpeed.value, (-14.5 - 1.0 - 45.0) / 30.0, 1e-9);
    EXPECT_NEAR(readings.ratio.value, 51.4444444 / (60.5 / 30.0), 1e-6);
    EXPECT_DOUBLE_EQ(readings.altitude.value, 1500.0 - 926.0);
    EXPECT_EQ(info.read(sources, 33001).averageVerticalSpeed.value, -3.0) << "nobody looked for two seconds";
}

TEST_F(GlideReadingsTest, aFrameAllocatesNothing) {
    glider.read(sources, 0);
    info.read(sources, 0);
    const AllocationCounter counter;
    for (unsigned now = 36; now < 200000; now += 360) {
        glider.read(sources, now);
        info.read(sources, now);
    }
    EXPECT_EQ(counter.count(), 0u);
}

} // namespace
} // namespace skyvane
