#include "chart/geodesy/EarthRectangles.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/LocalFrame.h"

#include <cmath>

namespace skyvane {
namespace {

/// The earth's radius squared.
constexpr double SquareKilometresPerSteradian = 40589651.00247062;

} // namespace

void calcRectangleAround(ChartPosition& nw, ChartPosition& se, const ChartPosition& centre, double size) {
    const double halfWidth = 0.5 * (size / longitudeScale(centre.latitude) / MetresPerDegree);
    const double halfHeight = 0.5 * size / MetresPerDegree;
    nw = ChartPosition(Angle0to360(centre.longitude - halfWidth), Angle0to360(centre.latitude + halfHeight));
    se = ChartPosition(Angle180(centre.longitude + halfWidth), centre.latitude - halfHeight);
}

double calcConstrainedArea(const ChartPosition& nw, const ChartPosition& se) {
    const double west = std::fmod(nw.longitude, 360.0);
    double east = std::fmod(se.longitude, 360.0);
    while (east < west)
        east += 360.0;
    const double height =
        std::fabs(std::sin(nw.latitude / DegreesPerRadian) - std::sin(se.latitude / DegreesPerRadian));
    return SquareKilometresPerSteradian * height * ((east - west) / DegreesPerRadian);
}

} // namespace skyvane
