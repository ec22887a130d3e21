#include "flightfeed/flight/LandingBeam.h"

#include "flightfeed/flight/Units.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double FULL_DEFLECTION_DOTS = 2.5;

double dots(double angle, double fullDeflection) {
    return std::clamp(FULL_DEFLECTION_DOTS * angle / fullDeflection, -FULL_DEFLECTION_DOTS, FULL_DEFLECTION_DOTS);
}

// From the antenna of the glide path, abeam the point of touch-down, to the threshold.
double antennaMetresBehindThreshold(const CardRunway& runway) {
    constexpr double thresholdCrossingMetres = 50.0 * METRES_PER_FOOT;
    return thresholdCrossingMetres / std::tan(toRadians(runway.glideDegrees));
}

} // namespace

RunwayOffset runwayOffset(const CardRunway& runway, const GroundPoint& point) {
    const GroundOffset offset = offsetBetween(runway.threshold, point);
    const double north = std::cos(toRadians(runway.courseDegrees));
    const double east = std::sin(toRadians(runway.courseDegrees));
    return {-(offset.northMetres * north + offset.eastMetres * east),
            offset.eastMetres * north - offset.northMetres * east};
}

double glidePathMetres(const CardRunway& runway, double beforeMetres) {
    const double distance = beforeMetres + antennaMetresBehindThreshold(runway);
    return runway.elevationMetres + distance * std::tan(toRadians(runway.glideDegrees));
}

void setLandingBeam(const CardRunway& runway, FlightState& state) {
    constexpr double localizerHalfWidthMetres = 105.0;
    constexpr double glideHalfWidthDegrees = 0.7;
    const RunwayOffset offset = runwayOffset(runway, {state.latitudeDegrees, state.longitudeDegrees});
    const double toAntenna = runway.lengthMetres + 300.0;
    const double localizer = std::atan2(-offset.rightMetres, offset.beforeMetres + toAntenna);
    const double distance = offset.beforeMetres + antennaMetresBehindThreshold(runway);
    const double glide = toDegrees(std::atan2(state.altitudeMetres - runway.elevationMetres, distance));
    state.hasIls = true;
    state.localizerDots = dots(localizer, std::atan2(localizerHalfWidthMetres, toAntenna));
    state.glideslopeDots = dots(glide - runway.glideDegrees, glideHalfWidthDegrees);
}

} // namespace skyvane
