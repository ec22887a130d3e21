#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "terrain/files/TerrainTile.h"

#include <algorithm>

namespace skyvane {

/// The sample nearest to a place of a tile, x columns from its west and y rows from its north edge, brought into it.
inline int16_t sampleNearest(const int16_t* heights, double x, double y) {
    const int column = std::clamp(static_cast<int>(x + 0.5), 0, TileSteps);
    const int row = std::clamp(static_cast<int>(y + 0.5), 0, TileSteps);
    return heights[row * TileSide + column];
}

/// What the four samples around a place say. With a hole among them it is the first usable one, from north-west by
/// north-east and south-west to south-east, or NoHeight; else their bilinear blend, rounded half away from zero.
inline int16_t sampleInterpolated(const int16_t* heights, double x, double y) {
    const int x0 = std::clamp(static_cast<int>(x), 0, TileSteps);
    const int y0 = std::clamp(static_cast<int>(y), 0, TileSteps);
    const double fx = std::clamp(x - x0, 0.0, 1.0), fy = std::clamp(y - y0, 0.0, 1.0);
    const int right = fx > 0.0 && x0 < TileSteps ? 1 : 0;
    const int below = fy > 0.0 && y0 < TileSteps ? TileSide : 0;
    const int16_t* corner = heights + y0 * TileSide + x0;
    const int16_t h00 = corner[0], h01 = corner[right], h10 = corner[below], h11 = corner[below + right];
    if (h00 == NoHeight || h01 == NoHeight || h10 == NoHeight || h11 == NoHeight)
        return h00 != NoHeight ? h00 : h01 != NoHeight ? h01 : h10 != NoHeight ? h10 : h11;
    const double north = h00 + (h01 - h00) * fx;
    const double south = h10 + (h11 - h10) * fx;
    const double height = north + (south - north) * fy;
    return static_cast<int16_t>(height < 0.0 ? height - 0.5 : height + 0.5);
}

/// The height of a tile at a position of its cell.
inline int16_t sampleTile(const int16_t* heights, const ChartPosition& nw, const ChartPosition& se,
                          const ChartPosition& position, bool interpolate) {
    const double x = (position.longitude - nw.longitude) / (se.longitude - nw.longitude) * TileSteps;
    const double y = (position.latitude - nw.latitude) / (se.latitude - nw.latitude) * TileSteps;
    return interpolate ? sampleInterpolated(heights, x, y) : sampleNearest(heights, x, y);
}

} // namespace skyvane
