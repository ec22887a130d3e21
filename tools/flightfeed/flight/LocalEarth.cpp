#include "flightfeed/flight/LocalEarth.h"

#include "flightfeed/flight/Units.h"

#include <cmath>

namespace skyvane {

LocalEarth localEarth(double latitudeDegrees, double altitudeMetres) {
    constexpr double equatorMetres = 6378137.0;
    constexpr double eccentricitySquared = 0.00669437999014;
    const double sine = std::sin(toRadians(latitudeDegrees));
    const double w2 = 1.0 - eccentricitySquared * sine * sine;
    const double primeVertical = equatorMetres / std::sqrt(w2);
    const double meridian = primeVertical * (1.0 - eccentricitySquared) / w2;
    return {toRadians(meridian + altitudeMetres),
            toRadians((primeVertical + altitudeMetres) * std::cos(toRadians(latitudeDegrees)))};
}

GroundOffset offsetBetween(const GroundPoint& from, const GroundPoint& to) {
    const LocalEarth earth = localEarth(0.5 * (from.latitudeDegrees + to.latitudeDegrees), 0.0);
    return {(to.latitudeDegrees - from.latitudeDegrees) * earth.metresPerDegreeNorth,
            wrapDegrees180(to.longitudeDegrees - from.longitudeDegrees) * earth.metresPerDegreeEast};
}

void moveBy(GroundPoint& point, double altitudeMetres, double northMetres, double eastMetres) {
    const LocalEarth earth = localEarth(point.latitudeDegrees, altitudeMetres);
    point.latitudeDegrees += northMetres / earth.metresPerDegreeNorth;
    point.longitudeDegrees = wrapDegrees180(point.longitudeDegrees + eastMetres / earth.metresPerDegreeEast);
}

} // namespace skyvane
