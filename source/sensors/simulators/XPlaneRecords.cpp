#include "sensors/simulators/XPlaneRecords.h"

#include "chart/geodesy/EarthConstants.h"
#include "core/time/Time.h"
#include "sensors/SensorManager.h"
#include "sensors/records/Acceleration_Data.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/LocGs_Data.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/ScalarData.h"
#include "sensors/records/Traffic_Data.h"
#include "sensors/simulators/PlausibleRange.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr double turnRateBlurSeconds = 2.0;
constexpr double turnRateMinimalDeltaSeconds = 0.001;
constexpr double gravityMetresPerSecondSquared = 9.81;
constexpr double millibarsPerInchOfMercury = 33.86383613011467;

/// The groups of X-Plane's data output that are understood.
enum GroupIndex {
    Times = 1,
    Speeds = 3,
    Atmosphere = 6,
    AngularVelocities = 16,
    PitchRollHeadings = 17,
    AngleOfAttackSlip = 18,
    LatitudeLongitudeAltitude = 20,
    PositionVelocity = 21,
    TrafficLatitudes = 22,
    TrafficLongitudes = 23,
    TrafficAltitudes = 24,
    Deviations = 99
};

} // namespace

XPlaneRecords::XPlaneRecords(SensorManager* sensors, const std::vector<ISensorData::Type>& types)
    : turnRates_(0.0, 0.0, nullptr, nullptr, turnRateMinimalDeltaSeconds, turnRateBlurSeconds, false) {
    clearSamples(turnRates_);
    for (const ISensorData::Type type : types)
        records_[static_cast<size_t>(type)] = sensors->createSensorData(type);
    presetGps();
}

/// What a simulator doesn't send.
void XPlaneRecords::presetGps() {
    auto* gps = record<GPS_Data>(ISensorData::GPS);
    if (!gps)
        return;
    gps->fixQuality = 1;
    gps->satelliteCount = 99;
    gps->fixType = 3;
    gps->pdop = 1.4142135623730951;
    gps->hdop = 1.0;
    gps->vdop = 1.0;
    gps->status = 1;
    gps->day = 1;
    gps->month = 1;
    gps->year = 2099;
    gps->timeAvailable = gps->positionAvailable = gps->altitudeAvailable = true;
    gps->dilutionOfPrecisionAvailable = gps->dateAvailable = true;
    gps->speedAvailable = gps->groundTrackAvailable = true;
}

ISensorData* XPlaneRecords::get(ISensorData::Type type) const {
    return type >= 0 && type < ISensorData::TypeCount ? records_[static_cast<size_t>(type)].get() : nullptr;
}

template <class T>
T* XPlaneRecords::record(ISensorData::Type type) const {
    return dynamic_cast<T*>(get(type));
}

bool XPlaneRecords::take(const void* bytes, size_t length, unsigned nowMs) {
    XPlaneDatagram datagram(bytes, length);
    if (!datagram.isTaken())
        return false;
    if (!ages_.isDatagramFresh(nowMs)) {
        clearSamples(turnRates_);
        traffic_.forget();
    }
    if (nowMs != nowMs_ || !ages_.isDatagramFresh(nowMs))
        nowSeconds_ = Secs();
    nowMs_ = nowMs;
    ages_.markDatagram(nowMs);
    for (Group group; datagram.next(group);)
        takeGroup(group);
    return true;
}

void XPlaneRecords::takeGroup(const Group& group) {
    switch (group.index) {
    case Times:
        return takeTime(group.values);
    case Speeds:
        return takeSpeeds(group.values);
    case Atmosphere:
        return takeAir(group.values);
    case AngularVelocities:
        return takeYawRate(group.values);
    case PitchRollHeadings:
        return takeAttitude(group.values);
    case AngleOfAttackSlip:
        return takeSlip(group.values);
    case LatitudeLongitudeAltitude:
        return takePosition(group.values);
    case PositionVelocity:
        return takeClimb(group.values);
    case TrafficLatitudes:
    case TrafficLongitudes:
    case TrafficAltitudes:
        return takeTraffic(group);
    case Deviations:
        takeDeviation(ISensorData::Localizer, group.values[5]);
        return takeDeviation(ISensorData::Glideslope, group.values[6]);
    default:
        return;
    }
}

void XPlaneRecords::setValue(ISensorData::Type type, double value) {
    if (auto* data = record<ScalarData>(type)) {
        data->value = value;
        data->timeStamp = nowMs_;
        renewed(type);
    }
}

void XPlaneRecords::takeTime(const Values& values) {
    auto* gps = record<GPS_Data>(ISensorData::GPS);
    const double hours = values[5];
    if (!gps || !(hours >= 0.0 && hours < 24.0))
        return;
    gps->hour = static_cast<int>(hours);
    const double minutes = (hours - gps->hour) * 60.0;
    gps->minute = static_cast<int>(minutes);
    const double seconds = (minutes - gps->minute) * 60.0;
    gps->second = static_cast<int>(seconds);
    gps->millisecond = static_cast<int>((seconds - gps->second) * 1000.0);
    gps->timeStamp = nowMs_;
    renewed(ISensorData::GPS);
}

void XPlaneRecords::takeSpeeds(const Values& values) {
    const double indicatedKnots = values[0];
    const double groundKnots = values[3];
    if (Plausible::speedKnots.holds(indicatedKnots))
        setValue(ISensorData::AirSpeed, indicatedKnots);
    if (!Plausible::speedKnots.holds(groundKnots))
        return;
    setValue(ISensorData::GroundSpeed, groundKnots);
    if (auto* gps = record<GPS_Data>(ISensorData::GPS)) {
        gps->groundSpeed = groundKnots;
        gps->timeStamp = nowMs_;
        renewed(ISensorData::GPS);
    }
}

void XPlaneRecords::takeAir(const Values& values) {
    const double millibars = values[0] * millibarsPerInchOfMercury;
    const double celsius = values[2];
    if (Plausible::pressureMillibars.holds(millibars)) {
        setValue(ISensorData::InsidePressure, millibars);
        setValue(ISensorData::OutsidePressure, millibars);
    }
    if (Plausible::temperatureCelsius.holds(celsius)) {
        setValue(ISensorData::InsideTemperature, celsius);
        setValue(ISensorData::OutsideTemperature, celsius);
    }
}

void XPlaneRecords::takeYawRate(const Values& values) {
    const double degreesPerSecond = values[2] * DegreesPerRadian;
    if (!Plausible::yawRateDegreesPerSecond.holds(degreesPerSecond))
        return;
    turnRates_.addSample(degreesPerSecond, nowSeconds_);
    setValue(ISensorData::TurnRate, turnRates_.calcLastValueBlured());
}

void XPlaneRecords::takeAttitude(const Values& values) {
    const double pitchDegrees = values[0];
    const double rollDegrees = values[1];
    const double headingDegrees = values[2];
    if (!Plausible::angleDegrees.holds(headingDegrees))
        return;
    setValue(ISensorData::Heading, headingDegrees);
    if (auto* gps = record<GPS_Data>(ISensorData::GPS)) {
        gps->groundTrack = headingDegrees;
        gps->timeStamp = nowMs_;
        renewed(ISensorData::GPS);
    }
    auto* attitude = record<Attitude_Data>(ISensorData::Attitude);
    if (!attitude || !Plausible::angleDegrees.holds(pitchDegrees) || !Plausible::angleDegrees.holds(rollDegrees))
        return;
    attitude->matrix = createYawMatrix(headingDegrees / DegreesPerRadian) *
                       createPitchMatrix(-pitchDegrees / DegreesPerRadian) *
                       createRollMatrix(-rollDegrees / DegreesPerRadian);
    attitude->timeStamp = nowMs_;
    renewed(ISensorData::Attitude);
}

void XPlaneRecords::takeSlip(const Values& values) {
    auto* acceleration = record<Acceleration_Data>(ISensorData::Acceleration);
    const double slipDegrees = values[7];
    if (!acceleration || !Plausible::angleDegrees.holds(slipDegrees))
        return;
    const double sideways = std::tan(slipDegrees / DegreesPerRadian) * -gravityMetresPerSecondSquared;
    if (!Plausible::metresPerSecondSquared.holds(sideways))
        return;
    acceleration->x = sideways;
    acceleration->y = -gravityMetresPerSecondSquared;
    acceleration->z = 0.0;
    acceleration->timeStamp = nowMs_;
    renewed(ISensorData::Acceleration);
}

void XPlaneRecords::takePosition(const Values& values) {
    const double latitude = values[0];
    const double longitude = values[1];
    const double altitudeMetres = values[2] * MetresPerFoot;
    const bool placed = Plausible::latitudeDegrees.holds(latitude) && Plausible::longitudeDegrees.holds(longitude);
    const bool high = Plausible::altitudeMetres.holds(altitudeMetres);
    auto* position = record<Position_Data>(ISensorData::Position);
    if (position && placed) {
        position->longitude = longitude;
        position->latitude = latitude;
        position->timeStamp = nowMs_;
        renewed(ISensorData::Position);
    }
    if (high)
        setValue(ISensorData::Altitude, altitudeMetres);
    auto* gps = record<GPS_Data>(ISensorData::GPS);
    if (gps && placed && high) {
        gps->latitude = latitude;
        gps->longitude = longitude;
        gps->altitude = altitudeMetres;
        gps->timeStamp = nowMs_;
        renewed(ISensorData::GPS);
    }
}

void XPlaneRecords::takeClimb(const Values& values) {
    if (Plausible::climbMetresPerSecond.holds(values[4]))
        setValue(ISensorData::VerticalSpeed, values[4]);
}

void XPlaneRecords::takeTraffic(const Group& group) {
    auto* traffic = record<Traffic_Data>(ISensorData::Traffic);
    if (!traffic)
        return;
    const bool taken = group.index == TrafficLatitudes    ? traffic_.takeLatitudes(group.values, nowSeconds_, *traffic)
                       : group.index == TrafficLongitudes ? traffic_.takeLongitudes(group.values, nowSeconds_, *traffic)
                                                          : traffic_.takeAltitudes(group.values, *traffic);
    if (taken)
        renewed(ISensorData::Traffic);
}

/// The amplitudes whose difference of depth of modulation puts an instrument's needle where the simulator shows it.
void XPlaneRecords::takeDeviation(ISensorData::Type type, double dots) {
    auto* beam = record<LocGs_Data>(type);
    if (!beam || !Plausible::deviationDots.holds(dots))
        return;
    const double part = (dots + 2.5) / 5.0;
    if (part < 0.0) {
        beam->amplitude90Hz = 0.0f;
        beam->amplitude150Hz = 1.0f;
    } else if (part > 1.0) {
        beam->amplitude90Hz = 1.24f;
        beam->amplitude150Hz = 0.0f;
    } else {
        beam->amplitude90Hz = static_cast<float>(part / 0.8064516);
        beam->amplitude150Hz = static_cast<float>(1.0 - part);
    }
    renewed(type);
}

} // namespace skyvane
