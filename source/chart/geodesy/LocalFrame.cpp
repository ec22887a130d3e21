#include "chart/geodesy/LocalFrame.h"

#include "chart/geodesy/Angles.h"

#include <cmath>

namespace skyvane {
namespace {

double longitudeScale(double latitude) {
    return std::fabs(latitude) > PolarLatitudeLimit ? PolarCosine : std::cos(latitude / DegreesPerRadian);
}

/// The turn of the longitude that lies nearest to the window's middle.
double nearestTurn(double longitude, double middle) {
    double result = Angle0to360(longitude);
    while (std::fabs(result + 360.0 - middle) < std::fabs(result - middle))
        result += 360.0;
    return result;
}

} // namespace

irr::core::vector3d<double> ChartPosition2Vector3df64(const ChartPosition& origin, const ChartPosition& position,
                                                      double height, double halfExtent) {
    const double halfHeight = halfExtent / MetresPerDegree;
    const double halfWidth = halfHeight / longitudeScale(origin.latitude);
    const double west = Angle0to360(origin.longitude - halfWidth);
    double east = Angle180(origin.longitude + halfWidth);
    while (east <= west)
        east += 360.0;
    const double north = origin.latitude + halfHeight;
    const double south = origin.latitude - halfHeight;

    const double longitude = nearestTurn(position.longitude, (west + east) / 2.0);
    const double u = Angle180(longitude - west) / Angle180(east - west);
    const double v = (north - position.latitude) / (north - south);
    return irr::core::vector3d<double>(2.0 * u * halfExtent - halfExtent, height, halfExtent - 2.0 * v * halfExtent);
}

} // namespace skyvane
