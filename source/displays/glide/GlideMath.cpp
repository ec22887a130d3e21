#include "displays/glide/GlideMath.h"

#include "displays/gauges/Needles.h"

#include <cmath>

namespace skyvane {

namespace {

constexpr double metresPerNauticalMile = 1852.0;
constexpr double metresPerSecondOfKnot = 0.514444444;
constexpr double leastGroundSpeedKnots = 5.0;
constexpr double leastGradient = 0.001;

} // namespace

double glideGradient(double groundSpeedKnots, double verticalSpeed) {
    if (!(groundSpeedKnots >= leastGroundSpeedKnots) || !std::isfinite(verticalSpeed))
        return noGradient;
    return -verticalSpeed / (groundSpeedKnots * metresPerNauticalMile / 3600.0);
}

double bestGradient(double inverseGlideRatio) {
    return inverseGlideRatio > 0.0 ? 1.0 / inverseGlideRatio : noBestGradient;
}

double altitudeAbove(double gradient, double multiplier, double altitudeMetres, double distanceNauticalMiles,
                     double elevationFeet) {
    const double steepened = gradient * multiplier;
    if (!(steepened >= leastGradient) || gradient == noGradient || steepened == noGradient)
        return noAltitudeAbove;
    const double metres =
        altitudeMetres - steepened * distanceNauticalMiles * metresPerNauticalMile - elevationFeet * metresPerFoot;
    return std::isfinite(metres) ? metres : noAltitudeAbove;
}

double glideRatio(double groundSpeedKnots, double verticalSpeed) {
    const double ratio = -groundSpeedKnots * metresPerSecondOfKnot / verticalSpeed;
    return std::isfinite(ratio) ? ratio : 0.0;
}

bool glideAltitude(double altitudeMetres, double distanceNauticalMiles, double inverseGlideRatio, double& metres) {
    if (!(inverseGlideRatio >= 1.0) || !(distanceNauticalMiles > 0.0) || altitudeMetres == 0.0)
        return false;
    metres = altitudeMetres - distanceNauticalMiles * metresPerNauticalMile / inverseGlideRatio;
    return std::isfinite(metres);
}

} // namespace skyvane
