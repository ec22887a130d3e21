#include "sensors/simulators/FlightGearData.h"

#include "core/bytes/ByteReader.h"

#include <initializer_list>

namespace skyvane {

bool FlightGearData::parse(const void* bytes, size_t length) {
    if (length != Bytes)
        return false;
    ByteReader in(bytes, length);
    pitchRadians = in.big<double>();
    yawRadians = in.big<double>();
    rollRadians = in.big<double>();
    for (double& rate : rates)
        rate = in.big<double>();
    for (double& acceleration : accelerations)
        acceleration = in.big<double>();
    groundTrackDegrees = in.big<double>();
    groundSpeedKnots = in.big<double>();
    altitudeMetres = in.big<double>();
    latitudeDegrees = in.big<double>();
    longitudeDegrees = in.big<double>();
    verticalSpeedMetresPerSecond = in.big<double>();
    temperatureCelsius = in.big<double>();
    for (int* number : {&hour, &minute, &second, &day, &month, &year})
        *number = in.big<int32_t>();
    pressureMillibars = in.big<double>();
    indicatedAirSpeedKnots = in.big<double>();
    return true;
}

} // namespace skyvane
