#include "chart/geodesy/LocalFrame.h"

#include "chart/geodesy/Angles.h"

#include <cmath>

namespace skyvane {
namespace {

/// The usual window's side, and its height in degrees of latitude.
constexpr double WindowMetres = 2.0 * LocalHalfExtentMetres;
constexpr double WindowDegrees = 0.17986429902184514;

/// The turn of the longitude that lies nearest to the window's middle.
double nearestTurn(double longitude, double middle) {
    double result = Angle0to360(longitude);
    while (std::fabs(result + 360.0 - middle) < std::fabs(result - middle))
        result += 360.0;
    return result;
}

} // namespace

double longitudeScale(double latitude) {
    return std::fabs(latitude) > PolarLatitudeLimit ? PolarCosine : std::cos(latitude / DegreesPerRadian);
}

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

irr::core::vector3d<float> ChartPosition2Vector3df(const ChartPosition& origin, const ChartPosition& position,
                                                   double height) {
    const auto place = ChartPosition2Vector3df64(origin, position, height);
    return irr::core::vector3d<float>(static_cast<float>(place.X), static_cast<float>(place.Y),
                                      static_cast<float>(place.Z));
}

ChartPosition Vector3df642ChartPosition(const ChartPosition& origin, const irr::core::vector3d<double>& place) {
    const double width = WindowMetres / longitudeScale(origin.latitude) / MetresPerDegree;
    const double west = Angle0to360(origin.longitude - 0.5 * width);
    const double north = origin.latitude + 0.5 * WindowDegrees;
    return ChartPosition(west + (LocalHalfExtentMetres + place.X) / WindowMetres * width,
                         north - (LocalHalfExtentMetres - place.Z) / WindowMetres * WindowDegrees);
}

ChartPosition Vector3df2ChartPosition(const ChartPosition& origin, const irr::core::vector3d<float>& place) {
    return Vector3df642ChartPosition(
        origin, irr::core::vector3d<double>(static_cast<double>(place.X), 0.0, static_cast<double>(place.Z)));
}

} // namespace skyvane
