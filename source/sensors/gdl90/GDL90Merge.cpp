#include "sensors/gdl90/GDL90Merge.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/Barometry.h"
#include "chart/geodesy/Geoid.h"
#include "core/time/Time.h"
#include "sensors/gdl90/GDL90MessageStore.h"
#include "sensors/simulators/PlausibleRange.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double StandardPressure = 1013.25;
constexpr double MetresPerSecondPerKnot = 0.514444444;

/// All that updateDataExceptTrafficAndUAT gives.
bool isMerged(ISensorData::Type type) {
    return type != ISensorData::Traffic && type != ISensorData::UATUplink;
}

bool isPlausibleTime(const TalosGPSMessage& gps) {
    return gps.timeValid && gps.hour < 24 && gps.minute < 60 && gps.second <= 60;
}

} // namespace

void GDL90Merge::updateDataExceptTrafficAndUAT(const GDL90MessageStore& store, double now) {
    now_ = now;
    nowMs_ = MilliSecs();
    const Messages messages(store, now);
    for (const ISensorData::Type type : GDL90Records::types())
        if (isMerged(type))
            records_.reset(type);
    takeTalosGps(messages);
    takeAttitude(messages);
    takeAcceleration(messages);
    takeTurnRate(messages);
    takeAirSpeed(messages);
    takeVerticalSpeed(messages, store.arrival(IGDL90Message::TALOS_PRESSURE));
    takePressures(messages);
    takeAltitude(messages);
    takeTemperature(messages);
    takeAngleOfAttack(messages);
    takePosition(messages);
}

void GDL90Merge::forget() {
    headings_ = GDL90Headings();
    headingMark_ = HeadingMark();
    headingRate_.reset();
    pressureAltitude_.reset();
    climb_.reset();
    for (FirstOrderFilter* filter : {&accelerationX_, &accelerationY_, &accelerationZ_, &gyroRate_})
        filter->reset();
    ownPlace_.reset();
    toldMeanSeaLevel_ = false;
}

void GDL90Merge::takeTalosGps(const Messages& messages) {
    if (!messages.talosGps)
        return;
    const TalosGPSMessage& from = *messages.talosGps;
    GPS_Data& gps = records_.gps;
    gps.latitude = from.latitude;
    gps.longitude = from.longitude;
    gps.altitude = from.altitude;
    gps.groundSpeed = from.groundspeed / MetresPerSecondPerKnot;
    gps.groundTrack = from.groundtrack;
    gps.satelliteCount = from.numberOfSatellites;
    gps.hour = from.hour;
    gps.minute = from.minute;
    gps.second = from.second;
    gps.millisecond = from.milliseconds;
    gps.timeStamp = nowMs_;
    gps.fixType = 3;
    gps.fixQuality = gps.status = from.hasFix ? 1 : 0;
    gps.pdop = gps.hdop = gps.vdop = 0.0;
    gps.positionAvailable = gps.altitudeAvailable = gps.speedAvailable = gps.groundTrackAvailable = from.hasFix;
    gps.timeAvailable = isPlausibleTime(from);
    gps.dilutionOfPrecisionAvailable = gps.magneticVariationAvailable = false;
    records_.give(ISensorData::GPS);
}

void GDL90Merge::takeAirSpeed(const Messages& messages) {
    std::optional<double> knots;
    if (messages.talosPressure)
        knots = messages.talosPressure->airspeed / MetresPerSecondPerKnot;
    else if (messages.stratux && messages.stratux->indicatedAirspeed)
        knots = messages.stratux->indicatedAirspeed;
    else if (messages.ffAhrs)
        knots = messages.ffAhrs->indicatedAirspeed ? messages.ffAhrs->indicatedAirspeed : messages.ffAhrs->trueAirspeed;
    if (!knots || !Plausible::speedKnots.holds(*knots))
        return;
    records_.airSpeed.value = *knots;
    records_.airSpeed.timeStamp = nowMs_;
    records_.give(ISensorData::AirSpeed);
}

void GDL90Merge::takePressures(const Messages& messages) {
    if (messages.stratux && messages.stratux->pressureAltitude) {
        records_.insidePressure.value = calcPressureFromAltitude(*messages.stratux->pressureAltitude, StandardPressure);
        records_.insidePressure.timeStamp = nowMs_;
        records_.give(ISensorData::InsidePressure);
    }
    if (messages.talosPressure) {
        records_.outsidePressure.value = messages.talosPressure->staticPressure;
        records_.outsidePressure.timeStamp = nowMs_;
        records_.give(ISensorData::OutsidePressure);
    }
}

bool GDL90Merge::isMeanSeaLevel() const {
    return calibration.altitude == GDL90Calibration::AltitudeAuto
               ? toldMeanSeaLevel_
               : calibration.altitude == GDL90Calibration::AltitudeMSL;
}

void GDL90Merge::takeAltitude(const Messages& messages) {
    if (messages.ffId)
        toldMeanSeaLevel_ = messages.ffId->isOwnShipMSLAltitude;
    if (messages.ownShip && messages.ownShip->isPositionAvailable() &&
        Plausible::latitudeDegrees.holds(messages.ownShip->latitude))
        ownPlace_ = Place{messages.ownShip->longitude, messages.ownShip->latitude};
    if (!messages.geoAlt)
        return;
    const double altitude = messages.geoAlt->altitude;
    records_.altitude.value = isMeanSeaLevel() || !ownPlace_
                                  ? altitude
                                  : calcMSLFromWGS84Ellipsoid(altitude, ownPlace_->longitude, ownPlace_->latitude);
    records_.altitude.timeStamp = nowMs_;
    records_.give(ISensorData::Altitude);
}

void GDL90Merge::takeTemperature(const Messages& messages) {
    std::optional<double> celsius;
    if (messages.talosTemperature)
        celsius = messages.talosTemperature->temperature;
    else if (messages.levilAoA && messages.levilAoA->outsideTemperature)
        celsius = (*messages.levilAoA->outsideTemperature - 32.0) / 1.8;
    if (!celsius || !Plausible::temperatureCelsius.holds(*celsius))
        return;
    records_.outsideTemperature.value = *celsius;
    records_.outsideTemperature.timeStamp = nowMs_;
    records_.give(ISensorData::OutsideTemperature);
}

void GDL90Merge::takeAngleOfAttack(const Messages& messages) {
    constexpr float usualMaximumDegrees = 17.0f;
    if (messages.levilAoA && messages.levilAoA->AoA) {
        records_.angleOfAttack = {static_cast<float>(*messages.levilAoA->AoA), 1.0f, true, nowMs_};
    } else if (messages.talosAoA) {
        const float clean = messages.talosAoA->cleanAoA, dirty = messages.talosAoA->dirtyAoA;
        const float maximum = clean >= 0.0f && dirty >= 0.0f ? std::min(clean, dirty)
                              : clean >= 0.0f                ? clean
                              : dirty >= 0.0f                ? dirty
                                                             : usualMaximumDegrees;
        records_.angleOfAttack = {messages.talosAoA->AoA, maximum, false, nowMs_};
    } else {
        return;
    }
    records_.give(ISensorData::AngleOfAttack);
}

void GDL90Merge::setPlace(double longitude, double latitude) {
    records_.position.longitude = Angle0to360(longitude);
    records_.position.latitude = latitude;
    records_.position.timeStamp = nowMs_;
    records_.give(ISensorData::Position);
}

void GDL90Merge::takePosition(const Messages& messages) {
    if (messages.hasTalosFix()) {
        setPlace(messages.talosGps->longitude, messages.talosGps->latitude);
        records_.groundSpeed.value = messages.talosGps->groundspeed / MetresPerSecondPerKnot;
        records_.groundSpeed.timeStamp = nowMs_;
        records_.give(ISensorData::GroundSpeed);
    }
    if (messages.ownShip && flavor_ != GDL90Flavor::Talos)
        takeOwnShip(*messages.ownShip);
    if (messages.levilGps && isGiven(ISensorData::Position))
        takeLevilGps(*messages.levilGps);
}

/// Fills what is still open.
void GDL90Merge::takeOwnShip(const OwnShipGDL90Message& ownShip) {
    const auto give = [this](ScalarData& record, double value) {
        record.value = value;
        record.timeStamp = nowMs_;
        records_.give(record.getType());
    };
    if (!isGiven(ISensorData::Position) && ownShip.isPositionAvailable() &&
        Plausible::latitudeDegrees.holds(ownShip.latitude))
        setPlace(ownShip.longitude, ownShip.latitude);
    if (!isGiven(ISensorData::GroundSpeed) && ownShip.velocity)
        give(records_.groundSpeed, *ownShip.velocity);
    if (!isGiven(ISensorData::VerticalSpeed) && ownShip.verticalSpeed)
        give(records_.verticalSpeed, *ownShip.verticalSpeed);
    if (!isGiven(ISensorData::InsidePressure) && ownShip.pressureAltitude)
        give(records_.insidePressure, calcPressureFromAltitude(*ownShip.pressureAltitude, StandardPressure));
}

void GDL90Merge::takeLevilGps(const LevilGPSStatus& status) {
    const bool hasTrack = headings_.track().isLive;
    GPS_Data& gps = records_.gps;
    gps.latitude = records_.position.latitude;
    gps.longitude = records_.position.longitude;
    gps.altitude = records_.altitude.value;
    gps.groundSpeed = records_.groundSpeed.value;
    gps.groundTrack = hasTrack ? headings_.track().degrees : 0.0;
    gps.satelliteCount = status.numSats;
    gps.timeStamp = nowMs_;
    gps.fixType = 3;
    gps.fixQuality = gps.status = hasTrack ? 1 : 0;
    gps.positionAvailable = gps.groundTrackAvailable = hasTrack;
    gps.altitudeAvailable = hasTrack && isGiven(ISensorData::Altitude);
    gps.speedAvailable = hasTrack && isGiven(ISensorData::GroundSpeed);
    gps.timeAvailable = gps.dilutionOfPrecisionAvailable = gps.magneticVariationAvailable = false;
    records_.give(ISensorData::GPS);
}

} // namespace skyvane
