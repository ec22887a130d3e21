#pragma once

#include "displays/mapmath/elements/GroundStyles.h"
#include "displays/shapes/Strokes.h"

namespace skyvane {

/// The parts of a ground line, each a width in pixels: what lies at the sides, and what lies on it.
void addGroundCasing(ShapeMesh& mesh, const ShapePath& path, const GroundStyle& style, double width, bool isClosed,
                     const ShapeRect& view);
void addGroundLine(ShapeMesh& mesh, const ShapePath& path, const GroundStyle& style, double width, bool isClosed,
                   const ShapeRect& view);

/// A whole feature at once, for pictures of a single one: `width` is that of a line in pixels.
void addGroundFeature(ShapeMesh& mesh, const ShapePath& path, uint8_t feature, bool isPolygon, double width,
                      const ShapeRect& view);

/// The line of an airway and its dark sides, by the level that it is for.
constexpr uint32_t airwayCasing = 0xff606060;
constexpr uint32_t airwayColor(bool isLowAltitude) {
    return isLowAltitude ? 0xff3c96e1 : 0xffcdaa78;
}

} // namespace skyvane
