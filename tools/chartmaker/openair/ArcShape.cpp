#include "chartmaker/openair/ArcShape.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double radiansPerDegree = 1.0 / DegreesPerRadian;

/// How many pieces an arc needs.
int piecesOf(double sweepDegrees, double radiusMetres) {
    constexpr double fewestPerTurn = 16.0;
    const double cosine = 1.0 - std::min(ArcToleranceMetres / std::max(radiusMetres, 1.0), 1.0);
    const double stepDegrees = std::min(2.0 * std::acos(cosine) / radiansPerDegree, 360.0 / fewestPerTurn);
    return std::max(1, static_cast<int>(std::ceil(sweepDegrees / stepDegrees)));
}

/// Degrees from one bearing to another in the given sense, above 0 up to 360.
double sweepBetween(double from, double to, bool isClockwise) {
    constexpr double none = 1e-9;
    const double degrees = Angle0to360(isClockwise ? to - from : from - to);
    return degrees < none ? 360.0 : degrees;
}

} // namespace

ChartPosition placeAt(const ChartPosition& centre, double bearingDegrees, double metres) {
    const double latitude = centre.latitude * radiansPerDegree, bearing = bearingDegrees * radiansPerDegree;
    const double angle = metres / EarthRadiusMetres;
    const double north =
        std::sin(latitude) * std::cos(angle) + std::cos(latitude) * std::sin(angle) * std::cos(bearing);
    const double east = std::sin(bearing) * std::sin(angle) * std::cos(latitude);
    const double longitude = std::atan2(east, std::cos(angle) - std::sin(latitude) * north);
    return ChartPosition(Angle180(centre.longitude + longitude / radiansPerDegree),
                         std::asin(std::clamp(north, -1.0, 1.0)) / radiansPerDegree);
}

void appendCircle(const ChartPosition& centre, double radiusMetres, std::vector<ChartPosition>& vertices) {
    const int pieces = piecesOf(360.0, radiusMetres);
    for (int i = 0; i < pieces; ++i)
        vertices.push_back(placeAt(centre, 360.0 * i / pieces, radiusMetres));
}

void appendArc(const ChartPosition& centre, double radiusMetres, const ArcSweep& sweep,
               std::vector<ChartPosition>& vertices) {
    const double degrees = sweepBetween(sweep.fromDegrees, sweep.toDegrees, sweep.isClockwise);
    const double sense = sweep.isClockwise ? degrees : -degrees;
    const int pieces = piecesOf(degrees, radiusMetres);
    for (int i = 0; i <= pieces; ++i)
        vertices.push_back(placeAt(centre, sweep.fromDegrees + sense * i / pieces, radiusMetres));
}

void appendArcBetween(const ChartPosition& centre, const ChartPosition& from, const ChartPosition& to, bool isClockwise,
                      std::vector<ChartPosition>& vertices) {
    const double begin = calcBearing2(centre, from), end = calcBearing2(centre, to);
    const double nearMetres = calcDistance2(centre, from), farMetres = calcDistance2(centre, to);
    const double degrees = sweepBetween(begin, end, isClockwise);
    const int pieces = piecesOf(degrees, std::max(nearMetres, farMetres));
    vertices.push_back(from);
    for (int i = 1; i < pieces; ++i) {
        const double share = static_cast<double>(i) / pieces;
        vertices.push_back(placeAt(centre, begin + (isClockwise ? degrees : -degrees) * share,
                                   nearMetres + (farMetres - nearMetres) * share));
    }
    vertices.push_back(to);
}

} // namespace skyvane
