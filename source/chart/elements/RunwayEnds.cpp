#include "chart/elements/RunwayEnds.h"

#include "chart/elements/AirportElement.h"
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double guessedLengthMetres = 600.0;
constexpr double leastLengthMetres = 10.0;
constexpr double widestParallelMetres = 91.44;
constexpr double guessedParallelMetres = 36.576;
constexpr int32_t widestTableFeet = 75;

/// Records store an unknown size as 0 or as a negative number.
int32_t asSigned(uint32_t feet) {
    return static_cast<int32_t>(feet);
}

const RunwayEnd& endOf(const Runway* runway, bool primary) {
    return runway->ends[primary ? 0 : 1];
}

ChartPosition layOut(const ChartPosition& from, double courseDegrees, double metres) {
    const double course = courseDegrees / DegreesPerRadian;
    return Vector3df642ChartPosition(from, {std::sin(course) * metres, 0.0, std::cos(course) * metres});
}

} // namespace

bool selectThreshholdElevation(const AirportElement* airport, const Runway* runway, bool primary, int& feet) {
    const RunwayEnd& end = endOf(runway, primary);
    feet = end.isElevationKnown ? end.elevationFeet : airport->elevationFeet;
    return end.isElevationKnown;
}

bool selectThreshholdPosition(const AirportElement* airport, const Runway* runway, bool primary,
                              ChartPosition& position) {
    const RunwayEnd& end = endOf(runway, primary);
    if (end.isThresholdKnown) {
        position = end.threshold;
        return true;
    }
    const int32_t feet = asSigned(runway->lengthFeet);
    const double length = feet < 1 ? guessedLengthMetres : std::max(feet * MetresPerFoot, leastLengthMetres);
    const double away = runway->directionDegrees % 360 + (primary ? 180.0 : 0.0);
    const RunwayEnd& other = endOf(runway, !primary);
    position =
        other.isThresholdKnown ? layOut(other.threshold, away, length) : layOut(airport->position, away, length / 2.0);
    return false;
}

void correctThreshholdPosition(const Runway* runway, irr::core::vector3d<double>& first,
                               irr::core::vector3d<double>& second) {
    const std::string& name = runway->ends[0].name;
    if (name.empty() || (name.back() != 'L' && name.back() != 'R'))
        return;
    const int32_t feet = asSigned(runway->widthFeet);
    double metres = feet > widestTableFeet ? widestParallelMetres : MetresPerFoot * 4.0 * feet;
    if (feet < 0)
        metres = guessedParallelMetres;
    irr::core::vector3d<double> right(second.Z - first.Z, 0.0, first.X - second.X);
    right.normalize();
    right *= name.back() == 'L' ? -metres : metres;
    first += right;
    second += right;
}

bool selectRunwayDirection(const Runway* runway, bool primary, double& course) {
    const RunwayEnd& from = endOf(runway, primary);
    const RunwayEnd& to = endOf(runway, !primary);
    if (from.isThresholdKnown && to.isThresholdKnown) {
        course = calcBearing2(from.threshold, to.threshold);
        return true;
    }
    course = Angle0to360(runway->directionDegrees % 360 + (primary ? 0.0 : 180.0));
    return false;
}

} // namespace skyvane
