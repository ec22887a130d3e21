#include "displays/mapmath/elements/MapAffine.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"

#include <cmath>

namespace skyvane {

namespace {

constexpr double degreesPerRadian = 57.29577951308232;

/// Of rectangles that are looked at: wider ones may be seen.
constexpr double widestDegrees = 90.0;

/// As Angle180 does, for differences that are rarely more than half a turn.
double shorterWay(double degrees) {
    return degrees >= -180.0 && degrees <= 180.0 ? degrees : Angle180(degrees);
}

} // namespace

ShapePoint MapAffine::toPixels(const ChartPosition& position) const {
    return origin +
           toPixels(shorterWay(position.longitude - reference.longitude), position.latitude - reference.latitude);
}

void MapAffine::project(const std::vector<ChartPosition>& vertices, ShapePath& path) const {
    path.clear();
    if (vertices.empty())
        return;
    const ChartPosition& first = vertices.front();
    const ShapePoint start = toPixels(first);
    path.reserve(vertices.size());
    for (const ChartPosition& vertex : vertices)
        path.push_back(start +
                       toPixels(shorterWay(vertex.longitude - first.longitude), vertex.latitude - first.latitude));
}

bool MapAffine::canSee(const ChartPosition& northWest, const ChartPosition& southEast, const ShapeRect& view) const {
    const double width = Angle0to360(southEast.longitude - northWest.longitude);
    if (!(width < widestDegrees)) // the other way round is as good
        return true;
    const ShapePoint corner = toPixels(northWest), across = toPixels(width, 0.0),
                     down = toPixels(0.0, southEast.latitude - northWest.latitude);
    ShapeRect bounds(corner, corner);
    for (const ShapePoint& other : {corner + across, corner + down, corner + across + down})
        bounds.addInternalPoint(other);
    return bounds.isRectCollided(view);
}

double MapAffine::getPixelsPerMetre() const {
    return north.getLength() / MetresPerDegree;
}

double MapAffine::getTurnDegrees() const {
    return std::atan2(east.Y, east.X) * degreesPerRadian;
}

} // namespace skyvane
