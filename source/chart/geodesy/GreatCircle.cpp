#include "chart/geodesy/GreatCircle.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

using Vector = irr::core::vector3d<double>;

/// Straight length between two unit vectors below which the planar way is taken.
constexpr double PlanarChord = 0.001;

/// The order of the arguments lets a NaN through, so that no place gives no distance.
double clampedAcos(double cosine) {
    return std::acos(std::min(std::max(cosine, -1.0), 1.0));
}

/// The part of v that stands upright on the unit vector, normalised; a vector of no length stays so.
Vector directionAcross(const Vector& v, const Vector& unit) {
    Vector across = v - unit * unit.dotProduct(v);
    return across.normalize();
}

/// From an angle to the reference direction and a component that tells the side; below 360.
double bearingOf(double angleDegrees, double eastComponent) {
    return Angle0to360(eastComponent < 0.0 ? 360.0 - angleDegrees : angleDegrees);
}

Vector inDouble(const irr::core::vector3d<float>& v) {
    return Vector(static_cast<double>(v.X), static_cast<double>(v.Y), static_cast<double>(v.Z));
}

/// A vector shorter than this has no direction.
constexpr double ShortestVector = 1e-8;

} // namespace

const ChartPosition magneticNorth(181.245, 86.471);

double calcDistance2(const ChartPosition& from, const ChartPosition& to) {
    const Vector a = calcVectorFromChartPositionf64(from.longitude, from.latitude);
    const Vector b = calcVectorFromChartPositionf64(to.longitude, to.latitude);
    if ((b - a).getLength() < PlanarChord)
        return ChartPosition2Vector3df64(from, to, 0.0).getLength();
    return EarthRadiusMetres * clampedAcos(a.dotProduct(b));
}

double calcBearing2(const ChartPosition& from, const ChartPosition& to) {
    const Vector a = calcVectorFromChartPositionf64(from.longitude, from.latitude);
    const Vector b = calcVectorFromChartPositionf64(to.longitude, to.latitude);
    if ((b - a).getLength() >= PlanarChord)
        return calcBearing(a, b);
    Vector direction = ChartPosition2Vector3df64(from, to, 0.0);
    direction.normalize();
    return bearingOf(clampedAcos(direction.Z) * DegreesPerRadian, direction.X);
}

double calcDistance(Vector from, Vector to) {
    return EarthRadiusMetres * clampedAcos(from.normalize().dotProduct(to.normalize()));
}

double calcDistance(const irr::core::vector3d<float>& from, const irr::core::vector3d<float>& to) {
    return calcDistance(inDouble(from), inDouble(to));
}

double calcBearing(Vector from, Vector to) {
    const Vector a = from.normalize();
    const Vector b = to.normalize();
    const Vector north = directionAcross(Vector(0.0, 1.0, 0.0), a);
    const Vector target = directionAcross(b, a);
    const Vector east = a.crossProduct(north);
    return bearingOf(clampedAcos(north.dotProduct(target)) * DegreesPerRadian, target.dotProduct(east));
}

double calcBearing(const irr::core::vector3d<float>& from, const irr::core::vector3d<float>& to) {
    return calcBearing(inDouble(from), inDouble(to));
}

Vector calcVectorFromChartPositionf64(double longitude, double latitude) {
    const double lon = longitude / DegreesPerRadian;
    const double lat = latitude / DegreesPerRadian;
    return Vector(std::cos(lon) * std::cos(lat), std::sin(lat), std::sin(lon) * std::cos(lat));
}

irr::core::vector3d<float> calcVectorFromChartPosition(double longitude, double latitude) {
    const Vector v = calcVectorFromChartPositionf64(longitude, latitude);
    return irr::core::vector3d<float>(static_cast<float>(v.X), static_cast<float>(v.Y), static_cast<float>(v.Z));
}

void calcChartPositionFromVector(const Vector& vector, double& longitude, double& latitude) {
    const double length = vector.getLength();
    if (length < ShortestVector)
        latitude = 0.0;
    else if (std::fabs(vector.Y / length) >= 1.0)
        latitude = vector.Y < 0.0 ? -90.0 : 90.0;
    else
        latitude = Latitudinize(std::asin(vector.Y / length) * DegreesPerRadian);

    const double toAxis = std::sqrt(vector.X * vector.X + vector.Z * vector.Z);
    if (toAxis < ShortestVector)
        longitude = 0.0;
    else if (std::fabs(vector.X / toAxis) >= 1.0)
        longitude = vector.X < 0.0 ? 180.0 : 0.0;
    else
        longitude = std::acos(vector.X / toAxis) * DegreesPerRadian;
    if (vector.Z < 0.0)
        longitude = 360.0 - longitude;
}

void calcChartPositionFromVector(const irr::core::vector3d<float>& vector, double& longitude, double& latitude) {
    calcChartPositionFromVector(inDouble(vector), longitude, latitude);
}

double calcTrueHeading(const ChartPosition& position, double magneticHeading) {
    return Angle0to360(calcBearing2(position, magneticNorth) + magneticHeading);
}

} // namespace skyvane
