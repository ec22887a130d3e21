#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <vector>

namespace skyvane {

/// The corners round some points, see calculateBoundingBox.
struct PointBounds {
    PointBounds() = default;
    explicit PointBounds(const std::vector<ChartPosition>& points);

    ChartPosition northWest;
    ChartPosition southEast;
    double areaSquareMetres = 0.0;
    bool isArea = false; ///< Two points or more.
};

} // namespace skyvane
