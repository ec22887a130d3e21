#pragma once

#include <array>
#include <string>

namespace skyvane {

/// Another aircraft, as it is told to the receiver.
struct TrafficState {
    double latitudeDegrees = 0.0;
    double longitudeDegrees = 0.0;
    double altitudeMetres = 0.0;
    double trackDegrees = 0.0;
    double groundSpeedKnots = 0.0;
    double climbMetresPerSecond = 0.0;
    std::string name; ///< empty where it has none
};

/// The truth of one instant of a flight: what a sender turns into a protocol's bytes.
///
/// Body axes: x forward, y right, z down. Positive pitch is nose up, positive roll right wing down, headings and tracks
/// clockwise from true north. Specific force is acceleration less gravity, so level flight feels -9.81 along z.
/// Altitude is above mean sea level in a standard atmosphere, so it is the pressure altitude too.
struct FlightState {
    static constexpr int MAXIMAL_TRAFFIC = 8;

    double timeSeconds = 0.0;         ///< since the flight began
    double utcSeconds = 1780308000.0; ///< since 1970, without leap seconds
    double latitudeDegrees = 0.0;     ///< WGS 84, north positive
    double longitudeDegrees = 0.0;    ///< WGS 84, east positive
    double altitudeMetres = 0.0;
    double velocityNorthMetresPerSecond = 0.0;
    double velocityEastMetresPerSecond = 0.0;
    double verticalSpeedMetresPerSecond = 0.0; ///< up positive
    double groundSpeedKnots = 0.0;
    double groundTrackDegrees = 0.0;
    double indicatedAirspeedKnots = 0.0;
    double trueAirspeedKnots = 0.0;
    double rollDegrees = 0.0;
    double pitchDegrees = 0.0;
    double headingDegrees = 0.0;
    double headingRateDegreesPerSecond = 0.0;
    double rollRateRadiansPerSecond = 0.0;  ///< about body x
    double pitchRateRadiansPerSecond = 0.0; ///< about body y
    double yawRateRadiansPerSecond = 0.0;   ///< about body z
    double specificForceForward = 0.0;      ///< metres per second squared, as the two below
    double specificForceRight = 0.0;
    double specificForceDown = -9.81;
    double pressureMillibars = 1013.25;
    double temperatureCelsius = 15.0;
    bool onGround = false;

    bool hasIls = false;
    double localizerDots = 0.0;  ///< positive: the beam lies to the right, limited to 2.5 either way
    double glideslopeDots = 0.0; ///< positive: the beam lies below

    int trafficCount = 0;
    std::array<TrafficState, MAXIMAL_TRAFFIC> traffic;
};

/// Where the ball of a slip indicator stands, in degrees, right positive.
double ballAngleDegrees(const FlightState& state);

} // namespace skyvane
