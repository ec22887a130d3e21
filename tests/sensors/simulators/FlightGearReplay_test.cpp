#include "chart/geodesy/Angles.h"
#include "sensors/SensorFakes.h"
#include "sensors/simulators/FlightGearSensor.h"
#include "sensors/simulators/FlightGearSensorFactory.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace skyvane {
namespace {

/// A recorded datagram of a real FlightGear with its time of arrival.
struct Arrival {
    double seconds = 0.0;
    std::string bytes;
};

std::vector<Arrival> readRecording(const std::string& path) {
    std::vector<Arrival> arrivals;
    gzFile file = gzopen(path.c_str(), "rb");
    char record[8 + 168];
    while (file && gzread(file, record, sizeof(record)) == static_cast<int>(sizeof(record))) {
        Arrival arrival;
        std::memcpy(&arrival.seconds, record, sizeof(arrival.seconds));
        arrival.bytes.assign(record + 8, 168);
        arrivals.push_back(arrival);
    }
    if (file)
        gzclose(file);
    return arrivals;
}

struct FlightGearReplay : testing::Test {
    void SetUp() override {
        const char* data = std::getenv("SKYVANE_DATA");
        if (data)
            arrivals = readRecording(std::string(data) + "/flights/flightgear-c172p-30hz.bin.gz");
        if (arrivals.empty())
            GTEST_SKIP() << "no recorded FlightGear flight: SKYVANE_DATA names none";
    }
    void take(const Arrival& arrival) {
        rig.clock.advance(arrival.seconds - rig.clock.seconds());
        ASSERT_TRUE(sensor.OnDatagram(arrival.bytes.data(), arrival.bytes.size(), MilliSecs()));
    }
    double value(ISensorData::Type type) { return dynamic_cast<ScalarData&>(*sensor.getData(type)).value; }

    std::vector<Arrival> arrivals;
    ManagerRig rig;
    FlightGearSensorFactory factory{&rig.manager};
    FlightGearSensor sensor{&factory, &rig.manager, 0};
};

/// The slow way to the turn rate: the differences of all headings, each at the middle of its time, weighted around the
/// newest.
class PlainTurnRate {
public:
    void add(double seconds, double headingDegrees) {
        if (known_ && !(seconds - seconds_ > 0.01))
            return;
        if (known_) {
            times_.push_back((seconds_ + seconds) / 2);
            rates_.push_back(Angle180(headingDegrees - heading_) / (seconds - seconds_));
        }
        known_ = true;
        seconds_ = seconds;
        heading_ = headingDegrees;
    }
    double now() const {
        double sum = 0.0, weights = 0.0;
        for (size_t i = times_.size(); i-- > 0 && times_.back() - times_[i] < 10.0;) {
            const double age = times_.back() - times_[i];
            sum += rates_[i] * std::exp(-0.5 * age * age);
            weights += std::exp(-0.5 * age * age);
        }
        return weights > 0.0 ? sum / weights : 0.0;
    }

private:
    bool known_ = false;
    double seconds_ = 0.0;
    double heading_ = 0.0;
    std::vector<double> times_, rates_;
};

TEST_F(FlightGearReplay, turnRateFollowsTheHeading) {
    PlainTurnRate plain;
    double largestError = 0.0, fastest = 0.0, turned = 0.0, turnedByRate = 0.0;
    for (size_t i = 0; i < arrivals.size(); ++i) {
        const double before = value(ISensorData::Heading);
        take(arrivals[i]);
        FlightGearData data;
        data.parse(arrivals[i].bytes.data(), arrivals[i].bytes.size());
        plain.add(arrivals[i].seconds, data.yawRadians * 57.29577951);
        const double rate = value(ISensorData::TurnRate);
        largestError = std::max(largestError, std::abs(rate - plain.now()));
        fastest = std::max(fastest, std::abs(rate));
        if (i < 300)
            continue;
        turned += Angle180(value(ISensorData::Heading) - before);
        turnedByRate += rate * (arrivals[i].seconds - arrivals[i - 1].seconds);
    }
    std::printf("turn rate: off the plain one by %.2g, fastest %.2f deg/s; turned %.1f deg, %.1f by the rate\n",
                largestError, fastest, turned, turnedByRate);
    EXPECT_LT(largestError, 1e-4);
    EXPECT_GT(fastest, 5.0) << "it flew turns";
    EXPECT_NEAR(turnedByRate, turned, 2.0);
}

TEST_F(FlightGearReplay, levelFlightPullsTheBallDown) {
    irr::core::vector3d<double> mean;
    for (const Arrival& arrival : arrivals) {
        take(arrival);
        const auto& a = dynamic_cast<Acceleration_Data&>(*sensor.getData(ISensorData::Acceleration));
        mean += irr::core::vector3d<double>(a.x, a.y, a.z) / static_cast<double>(arrivals.size());
    }
    std::printf("mean acceleration: %.3f %.3f %.3f\n", mean.X, mean.Y, mean.Z);
    EXPECT_NEAR(mean.X, 0.0, 0.3);
    EXPECT_NEAR(mean.Y, -9.81, 0.3);
    EXPECT_NEAR(mean.Z, 0.0, 1.0) << "climbs and slow flight tilt it";
}

TEST_F(FlightGearReplay, everyRecordIsRenewedByEveryDatagram) {
    for (const Arrival& arrival : arrivals) {
        take(arrival);
        int length = 0;
        for (const auto type : sensor.getSupportedDataTypes()) {
            const auto* form = static_cast<const char*>(sensor.getData(type)->serialize(&length));
            unsigned stamp = 0;
            std::memcpy(&stamp, form + (type == ISensorData::GPS ? 16 : length - 4), sizeof(stamp));
            ASSERT_EQ(stamp, MilliSecs()) << type;
        }
    }
}

} // namespace
} // namespace skyvane
