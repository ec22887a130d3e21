#include "displays/mapmath/elements/MapAffine.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"

#include <cmath>

namespace skyvane {

namespace {

constexpr double degreesPerRadian = 57.29577951308232;

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

double MapAffine::getPixelsPerMetre() const {
    return north.getLength() / MetresPerDegree;
}

double MapAffine::getTurnDegrees() const {
    return std::atan2(east.Y, east.X) * degreesPerRadian;
}

} // namespace skyvane
