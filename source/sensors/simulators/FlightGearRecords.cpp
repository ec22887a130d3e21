#include "sensors/simulators/FlightGearRecords.h"

#include "chart/geodesy/EarthConstants.h"
#include "core/time/Time.h"
#include "sensors/simulators/FlightGearData.h"
#include "sensors/simulators/PlausibleRange.h"

#include <algorithm>
#include <iterator>

namespace skyvane {
namespace {

constexpr double headingBlurSeconds = 1.0;
constexpr double headingMinimalDeltaSeconds = 0.01;
constexpr double turnRateBlurSeconds = 1.0;
constexpr double turnRateMinimalDeltaSeconds = 0.001;

bool isPlausibleTime(const FlightGearData& data) {
    return PlausibleRange{0, 23}.holds(data.hour) && PlausibleRange{0, 59}.holds(data.minute) &&
           PlausibleRange{0, 60}.holds(data.second) && PlausibleRange{1, 31}.holds(data.day) &&
           PlausibleRange{1, 12}.holds(data.month) && PlausibleRange{1, 9999}.holds(data.year);
}

bool isPlausiblePlace(const FlightGearData& data) {
    return Plausible::latitudeDegrees.holds(data.latitudeDegrees) &&
           Plausible::longitudeDegrees.holds(data.longitudeDegrees);
}

bool isPlausibleAngle(double radians) {
    return Plausible::angleDegrees.holds(radians * DegreesPerRadian);
}

} // namespace

FlightGearRecords::FlightGearRecords()
    : turnRates_(0.0, 0.0, nullptr, nullptr, turnRateMinimalDeltaSeconds, turnRateBlurSeconds, false),
      headings_(0.0, 0.0, nullptr, &turnRates_, headingMinimalDeltaSeconds, headingBlurSeconds, true) {
    gps_.fixQuality = 1;
    gps_.satelliteCount = 99;
    gps_.fixType = 3;
    gps_.pdop = gps_.hdop = gps_.vdop = 1.0;
    gps_.status = 1;
    gps_.timeAvailable = gps_.positionAvailable = gps_.altitudeAvailable = true;
    gps_.dilutionOfPrecisionAvailable = gps_.dateAvailable = true;
    gps_.speedAvailable = gps_.groundTrackAvailable = true;
}

ISensorData* FlightGearRecords::get(ISensorData::Type type) {
    ISensorData* const records[] = {&gps_,      &attitude_, &heading_,     &acceleration_,
                                    &position_, &altitude_, &groundSpeed_, &verticalSpeed_,
                                    &turnRate_, &airSpeed_, &pressure_,    &temperature_};
    const auto* found = std::find_if(std::begin(records), std::end(records),
                                     [type](ISensorData* record) { return record->getType() == type; });
    return found == std::end(records) ? nullptr : *found;
}

void FlightGearRecords::take(const FlightGearData& data, unsigned nowMs) {
    if (!ages_.isDatagramFresh(nowMs)) {
        clearSamples(headings_);
        clearSamples(turnRates_);
    }
    if (nowMs != nowMs_ || !ages_.isDatagramFresh(nowMs))
        nowSeconds_ = Secs();
    nowMs_ = nowMs;
    ages_.markDatagram(nowMs);
    takeScalars(data);
    takeAcceleration(data);
    takeAttitude(data);
    takePosition(data);
    takeGps(data);
}

void FlightGearRecords::takeScalars(const FlightGearData& data) {
    const auto set = [this](ScalarData& record, double value, const PlausibleRange& range) {
        if (!range.holds(value))
            return;
        record.value = value;
        record.timeStamp = nowMs_;
        renewed(record.getType());
    };
    set(airSpeed_, data.indicatedAirSpeedKnots, Plausible::speedKnots);
    set(altitude_, data.altitudeMetres, Plausible::altitudeMetres);
    set(groundSpeed_, data.groundSpeedKnots, Plausible::speedKnots);
    set(verticalSpeed_, data.verticalSpeedMetresPerSecond, Plausible::climbMetresPerSecond);
    set(pressure_, data.pressureMillibars, Plausible::pressureMillibars);
    set(temperature_, data.temperatureCelsius, Plausible::temperatureCelsius);
}

void FlightGearRecords::takeAcceleration(const FlightGearData& data) {
    for (const double acceleration : data.accelerations)
        if (!Plausible::metresPerSecondSquared.holds(acceleration))
            return;
    acceleration_.x = -data.accelerations[1];
    acceleration_.y = -data.accelerations[2];
    acceleration_.z = data.accelerations[0];
    acceleration_.timeStamp = nowMs_;
    renewed(ISensorData::Acceleration);
}

void FlightGearRecords::takeAttitude(const FlightGearData& data) {
    if (!isPlausibleAngle(data.yawRadians))
        return;
    takeHeading(data.yawRadians * DegreesPerRadian);
    if (!isPlausibleAngle(data.pitchRadians) || !isPlausibleAngle(data.rollRadians))
        return;
    attitude_.matrix =
        createYawMatrix(data.yawRadians) * createPitchMatrix(-data.pitchRadians) * createRollMatrix(-data.rollRadians);
    attitude_.resetKind = Attitude_Data::NoReset;
    attitude_.timeStamp = nowMs_;
    renewed(ISensorData::Attitude);
}

void FlightGearRecords::takeHeading(double headingDegrees) {
    heading_.value = headingDegrees;
    heading_.timeStamp = nowMs_;
    renewed(ISensorData::Heading);
    headings_.addSample(headingDegrees, nowSeconds_);
    turnRate_.value = turnRates_.calcLastValueBlured();
    turnRate_.timeStamp = nowMs_;
    renewed(ISensorData::TurnRate);
}

void FlightGearRecords::takePosition(const FlightGearData& data) {
    if (!isPlausiblePlace(data))
        return;
    position_.longitude = data.longitudeDegrees;
    position_.latitude = data.latitudeDegrees;
    position_.timeStamp = nowMs_;
    renewed(ISensorData::Position);
}

void FlightGearRecords::takeGps(const FlightGearData& data) {
    if (!isPlausibleTime(data) || !isPlausiblePlace(data) || !Plausible::altitudeMetres.holds(data.altitudeMetres) ||
        !Plausible::speedKnots.holds(data.groundSpeedKnots) || !Plausible::angleDegrees.holds(data.groundTrackDegrees))
        return;
    gps_.hour = data.hour;
    gps_.minute = data.minute;
    gps_.second = data.second;
    gps_.millisecond = static_cast<int>(nowMs_ % 1000);
    gps_.timeStamp = nowMs_;
    gps_.latitude = data.latitudeDegrees;
    gps_.longitude = data.longitudeDegrees;
    gps_.altitude = data.altitudeMetres;
    gps_.day = data.day;
    gps_.month = data.month;
    gps_.year = data.year;
    gps_.groundSpeed = data.groundSpeedKnots;
    gps_.groundTrack = data.groundTrackDegrees;
    renewed(ISensorData::GPS);
}

} // namespace skyvane
