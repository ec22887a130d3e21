#include "displays/mapmath/elements/GroundShapes.h"

#include "displays/shapes/PolygonSweep.h"

#include <algorithm>

namespace skyvane {

namespace {

constexpr double casingPixels = 1.0;
constexpr uint64_t sketchWork = 2000000;

float toFloat(double value) {
    return static_cast<float>(value);
}

} // namespace

void addGroundCasing(ShapeMesh& mesh, const ShapePath& path, const GroundStyle& style, double width, bool isClosed,
                     const ShapeRect& view) {
    if (style.casing)
        addStroke(mesh, path, {toFloat(width + 2.0 * casingPixels), style.casing, isClosed, 0.0f, 0.0f}, view);
}

void addGroundLine(ShapeMesh& mesh, const ShapePath& path, const GroundStyle& style, double width, bool isClosed,
                   const ShapeRect& view) {
    switch (style.pattern) {
    case GroundStyle::Plain:
        return addStroke(mesh, path, {toFloat(width), style.line, isClosed, 0.0f, 0.0f}, view);
    case GroundStyle::Dashed:
        return addStroke(mesh, path, {toFloat(width), style.line, isClosed, toFloat(7.0 * width), toFloat(3.5 * width)},
                         view);
    case GroundStyle::Sleepers:
        addStroke(mesh, path, {toFloat(width), style.line, isClosed, 0.0f, 0.0f}, view);
        return addStroke(
            mesh, path, {toFloat(4.2 * width), style.line, isClosed, toFloat(1.1 * width), toFloat(9.0 * width)}, view);
    }
}

void addGroundFeature(ShapeMesh& mesh, const ShapePath& path, uint8_t feature, bool isPolygon, double width,
                      const ShapeRect& view) {
    const GroundStyle& style = groundStyle(feature);
    if (!isPolygon) {
        addGroundCasing(mesh, path, style, width, false, view);
        return addGroundLine(mesh, path, style, width, false, view);
    }
    PolygonSweep sweep(path);
    if (style.fill && sweep.advance(sketchWork))
        for (const PolygonSweep::Trapezoid& part : sweep.getTrapezoids()) {
            const uint32_t first = mesh.add({part.left0, part.y0}, style.fill);
            mesh.add({part.right0, part.y0}, style.fill);
            mesh.add({part.right1, part.y1}, style.fill);
            mesh.add({part.left1, part.y1}, style.fill);
            mesh.quad(first, first + 1, first + 2, first + 3);
        }
    addGroundLine(mesh, path, style, std::max(1.0f, style.outline), true, view);
}

} // namespace skyvane
