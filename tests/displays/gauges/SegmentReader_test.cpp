#include "displays/gauges/SegmentReader.h"
#include "sensors/SensorFakes.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/GroundSpeed_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/Position_Data.h"
#include "support/AllocationCounter.h"

#include <gtest/gtest.h>
#include <limits>

namespace skyvane {
namespace {

class SegmentReaderTest : public testing::Test {
protected:
    void SetUp() override {
        rig.load("SensorCount = 2\nD0 = 1\nD2 = 1\nD4 = 1\nD5 = 1\nD6 = 1\n[S1]\nFactoryIndex = 0\n");
        sensor = rig.sensor(1);
        ASSERT_NE(sensor, nullptr);
        sources.sensors = &rig.manager;
    }
    SegmentReading read(SegmentType type) { return SegmentReader(type).read(sources); }
    static std::wstring text(const SegmentReading& reading) { return std::wstring(reading.text.view()); }

    ManagerRig rig;
    FakeSensor* sensor = nullptr;
    SegmentSources sources;
};

TEST_F(SegmentReaderTest, aFailedValueIsNeverShown) {
    sensor->put<Heading_Data>(ISensorData::Heading, 123.0, 1u);
    EXPECT_EQ(text(read(SegmentType::HEADING)), L"123\u00B0");
    EXPECT_EQ(read(SegmentType::HEADING).flag, DialFlag::Good);
    sensor->level = ISensor::MAYBE_WRONG;
    EXPECT_EQ(text(read(SegmentType::HEADING)), L"123\u00B0");
    EXPECT_EQ(read(SegmentType::HEADING).flag, DialFlag::Doubtful);
    sensor->level = ISensor::WRONG;
    EXPECT_EQ(text(read(SegmentType::HEADING)), L"n/A");
    EXPECT_EQ(read(SegmentType::HEADING).flag, DialFlag::Failed);
}

TEST_F(SegmentReaderTest, whatIsNoNumberHasFailed) {
    sensor->put<GroundSpeed_Data>(ISensorData::GroundSpeed, std::numeric_limits<double>::quiet_NaN(), 1u);
    sensor->put<Altitude_Data>(ISensorData::Altitude, std::numeric_limits<double>::infinity(), 1u);
    for (SegmentType type : {SegmentType::GROUNDSPEED, SegmentType::ALTITUDE, SegmentType::ALTITUDE_AGL}) {
        EXPECT_EQ(text(read(type)), L"n/A");
        EXPECT_EQ(read(type).flag, DialFlag::Failed);
    }
}

TEST_F(SegmentReaderTest, everyTypeIsFailedOrUnknownWithoutAnySensor) {
    rig.load("SensorCount = 1\n");
    for (int i = 0; i < segmentTypeCount; ++i) {
        const auto type = static_cast<SegmentType>(i);
        EXPECT_EQ(text(read(type)), L"n/A") << nameOf(type);
    }
    EXPECT_EQ(read(SegmentType::UTC).flag, DialFlag::Failed);
    EXPECT_EQ(read(SegmentType::ETE).flag, DialFlag::Good) << "no procedure is no failure";
}

TEST_F(SegmentReaderTest, whatAProcedureTellsIsBelievedAsFarAsThePosition) {
    sources.bearingDegrees = 45.0;
    sources.eteSeconds = 60;
    sources.distanceNauticalMiles = 12.0;
    EXPECT_EQ(read(SegmentType::BEARING).flag, DialFlag::Failed) << "no position";
    sensor->put<Position_Data>(ISensorData::Position);
    EXPECT_EQ(text(read(SegmentType::BEARING)), L"45\u00B0");
    EXPECT_EQ(text(read(SegmentType::ETE)), L"00:01:00");
    EXPECT_EQ(text(read(SegmentType::DISTANCE)), L"12");
    sensor->level = ISensor::WRONG;
    EXPECT_EQ(text(read(SegmentType::ETE)), L"n/A");
}

TEST_F(SegmentReaderTest, heightAboveGroundNeedsTerrainAndAltitude) {
    sensor->put<Altitude_Data>(ISensorData::Altitude, 500.0, 1u);
    EXPECT_EQ(text(read(SegmentType::ALTITUDE_AGL)), L"n/A");
    EXPECT_EQ(read(SegmentType::ALTITUDE_AGL).flag, DialFlag::Good);
    sources.groundElevationMetres = 100.0;
    EXPECT_EQ(text(read(SegmentType::ALTITUDE_AGL)), L"1310");
    sensor->records.clear();
    EXPECT_EQ(read(SegmentType::ALTITUDE_AGL).flag, DialFlag::Failed);
}

TEST_F(SegmentReaderTest, aSteadyFrameAllocatesNothing) {
    auto* satellite = sensor->put<GPS_Data>(ISensorData::GPS);
    satellite->timeAvailable = satellite->positionAvailable = satellite->dateAvailable = true;
    satellite->hour = satellite->minute = satellite->second = 3;
    satellite->day = satellite->month = satellite->year = 3;
    sensor->put<Altitude_Data>(ISensorData::Altitude, 12345.6, 1u);
    sources.eteSeconds = 100;
    for (SegmentType type : {SegmentType::POSITION, SegmentType::DATE, SegmentType::ETA, SegmentType::ALTITUDE}) {
        SegmentReader reader(type);
        const std::wstring before = text(reader.read(sources));
        EXPECT_NE(before, L"n/A");
        const AllocationCounter counter;
        const SegmentReading again = reader.read(sources);
        EXPECT_EQ(counter.count(), 0u) << nameOf(type);
        EXPECT_EQ(again.text.view(), before);
    }
    SegmentReader reader(SegmentType::POSITION);
    reader.read(sources);
    satellite->latitude = 12.0;
    EXPECT_EQ(text(reader.read(sources)).substr(0, 3), L"12\u00B0") << "the cached place has moved";
    satellite->positionAvailable = false;
    EXPECT_EQ(text(reader.read(sources)), L"n/A");
}

} // namespace
} // namespace skyvane
