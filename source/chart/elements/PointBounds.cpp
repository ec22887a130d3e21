#include "chart/elements/PointBounds.h"

#include "chart/geodesy/PointSets.h"

namespace skyvane {

PointBounds::PointBounds(const std::vector<ChartPosition>& points) {
    isArea = calculateBoundingBox(northWest, southEast, areaSquareMetres, points);
}

} // namespace skyvane
