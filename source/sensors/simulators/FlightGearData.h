#pragma once

#include <cstddef>

namespace skyvane {

/// One datagram of FlightGear's generic protocol as the program's definition makes it: 168 bytes, big-endian, the
/// fields in the order here; doubles, and 32-bit whole numbers for time and date.
///
/// Nothing is checked but the length: the numbers are what the sender wrote, infinities and NaN included.
struct FlightGearData {
    static constexpr size_t Bytes = 168;

    double pitchRadians = 0.0;
    double yawRadians = 0.0;
    double rollRadians = 0.0;
    double rates[3] = {};
    /// Metres per second squared, as numbered in the datagram; FlightGearRecords turns them into the body's axes.
    double accelerations[3] = {};
    double groundTrackDegrees = 0.0;
    double groundSpeedKnots = 0.0;
    double altitudeMetres = 0.0;
    double latitudeDegrees = 0.0;
    double longitudeDegrees = 0.0;
    double verticalSpeedMetresPerSecond = 0.0;
    double temperatureCelsius = 0.0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int day = 0;
    int month = 0;
    int year = 0;
    double pressureMillibars = 0.0;
    double indicatedAirSpeedKnots = 0.0;

    /// False, and no change, for any other length.
    bool parse(const void* bytes, size_t length);
};

} // namespace skyvane
