#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <cstdint>

namespace skyvane {

class TerrainSampler;

/// What a terrain image says of its heights, in metres.
struct TerrainImageFigures {
    bool undefined = true; ///< No pixel has any terrain; minimum and maximum then stay as here.
    float minimum = -40000.0f;
    float average = 0.0f;
    float maximum = 40000.0f;
};

/// What is added to a height in a pixel.
constexpr int TerrainImageOffset = 12000;
/// Stands in a pixel whose height nobody knows: to show it as the sea would be a lie.
constexpr int TerrainImageUnknown = 0;

/// Fills a picture of a geographic rectangle with heights and surface normals, for a shader that colours them.
///
/// Rows go from north to south, each from west to east, without gaps; pixels stand for their middles. Of each pixel's
/// bits, 0 to 15 are the height in metres plus TerrainImageOffset (places without terrain have TerrainImageUnknown, and
/// count as 0 in the figures), 16 to 23 the normal's part towards north and 24 to 31 its part towards east, both as
/// (n * 0.5 + 0.5) * 255. The east edge may lie across longitude 0 or 360, latitudes as calcRectangleAround gives them.
/// Allocates nothing.
TerrainImageFigures fillTerrainImage(TerrainSampler& terrain, const ChartPosition& nw, const ChartPosition& se,
                                     int width, int height, uint32_t* pixels);

} // namespace skyvane
