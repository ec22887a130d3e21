#include "sensors/nmea/GpsTrust.h"

namespace skyvane {
namespace {

constexpr double MovingKnots = 10.0;

ISensor::WarningLevel level(bool isThere, bool isGood) {
    return !isThere ? ISensor::WRONG : isGood ? ISensor::GOOD : ISensor::MAYBE_WRONG;
}

} // namespace

std::vector<ISensorData::Type> gpsReceiverTypes() {
    return {ISensorData::GPS,         ISensorData::Heading,       ISensorData::Position, ISensorData::Altitude,
            ISensorData::GroundSpeed, ISensorData::VerticalSpeed, ISensorData::TurnRate};
}

ISensor::WarningLevel gpsTrust(const GPS_Data& gps, ISensorData::Type type) {
    if (gps.fixQuality == 0 || gps.status == 0)
        return ISensor::WRONG;
    const bool isMoving = gps.groundSpeed >= MovingKnots;
    const bool hasFix = gps.fixType != 1;
    const bool is3d = gps.fixType > 2;
    const bool hasDop = gps.dilutionOfPrecisionAvailable;
    const bool hasTrack = hasFix && gps.positionAvailable && gps.groundTrackAvailable;
    switch (type) {
    case ISensorData::GPS:
        return level(hasTrack, gps.satelliteCount > 4 && is3d && isMoving && gps.altitudeAvailable && hasDop);
    case ISensorData::Heading:
    case ISensorData::TurnRate:
        return level(hasTrack, gps.satelliteCount > 4 && isMoving && gps.altitudeAvailable);
    case ISensorData::Position:
        return level(hasFix && gps.positionAvailable, gps.satelliteCount >= 4 && is3d && hasDop);
    case ISensorData::Altitude:
    case ISensorData::VerticalSpeed:
        return level(gps.satelliteCount >= 4 && is3d && gps.positionAvailable && gps.altitudeAvailable,
                     gps.satelliteCount > 4 && isMoving && gps.groundTrackAvailable && hasDop);
    case ISensorData::GroundSpeed:
        return level(hasFix && gps.positionAvailable && gps.speedAvailable, gps.satelliteCount >= 4 && is3d && hasDop);
    default:
        return ISensor::WRONG;
    }
}

} // namespace skyvane
