#include "displays/map/elements/GroundGeometryRenderer.h"

#include "chart/elements/GroundGeometryElement.h"
#include "chart/geodesy/Angles.h"
#include "core/Context.h"
#include "displays/map/Map2D.h"
#include "displays/map/elements/MapDrawing.h"
#include "displays/map/elements/RendererParts.h"
#include "displays/mapmath/elements/GroundShapes.h"
#include "displays/mapmath/elements/OutlineSketch.h"

#include <algorithm>

namespace skyvane {

namespace {

constexpr double fineStep = 0.6, leastPolygonPixels = 2.5, metresPerStep = 0.5;

constexpr double largestNameArea = 1.5, leastNamedPixels = 14.0;
constexpr uint8_t lakeFeature = 13;
constexpr float nameScale = 0.65f;
const irr::video::SColor nameColor(0xffffffff), townBackground(0xb04a3a12), waterBackground(0xb0163a66);

/// The longer side of the rectangle round a path.
double extentOf(const ShapePath& path) {
    if (path.empty())
        return 0.0;
    ShapeRect bounds(path[0], path[0]);
    for (const ShapePoint& point : path)
        bounds.addInternalPoint(point);
    return std::max(bounds.getWidth(), bounds.getHeight());
}

} // namespace

void GroundGeometryRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& ground = static_cast<const GroundGeometryElement&>(*element);
    const SketchFrame frame = parts_.painter.frameFor(rect);
    SketchKey key(frame);
    key.add(static_cast<const void*>(parts_.context->getFlexibleFont()));
    key.add(ground.name);
    key.add(ground.feature);
    key.add(ground.geoType);
    key.add(ground.vertices);
    parts_.painter.draw(sketch_.get(key, [&] { return planGroundSketch(ground, frame); }), rect);
}

void GroundGeometryRenderer::render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT,
                                      bool selected) {
    const auto& ground = static_cast<const GroundGeometryElement&>(*element);
    const MapAffine affine = affineOf(*map, intoRTT);
    const ShapeRect view = viewOf(*map, intoRTT);
    if (!canSee(affine, ground.getBounds(), view))
        return;
    const GroundStyle& style = groundStyle(ground.feature);
    affine.project(ground.vertices, path_);
    thinOut(path_, fineStep, thinned_);
    const bool isPolygon = ground.geoType == GroundGeometryElement::Polygon;
    if (isPolygon && extentOf(thinned_) < leastPolygonPixels)
        return;
    const double shown = isPolygon
                             ? pixelsOf(*map, style.outline)
                             : std::max<double>(pixelsOf(*map, style.width),
                                                ground.getWidthSteps() * metresPerStep * affine.getPixelsPerMetre());
    if (selected) {
        addStroke(mesh_, thinned_,
                  {static_cast<float>(shown) + pixelsOf(*map, 3.0), selectionColor, isPolygon, 0.0f, 0.0f}, view);
    } else if (isPolygon && style.fill) {
        const int step = groundDetailStep(1.0 / affine.north.getLength());
        if (const GroundFill* fill = fills_.get(index, step, ground.vertices))
            fill->addTo(mesh_, affine, style.fill, view);
    }
    if (!isPolygon)
        addGroundCasing(mesh_, thinned_, style, shown, false, view);
    if (shown > 0.0)
        addGroundLine(mesh_, thinned_, style, shown, isPolygon, view);
    drawShapes(*map, mesh_);
    if (!selected && isPolygon && !ground.name.empty() && map->getViewArea() <= largestNameArea)
        addName(ground, *map, index, extentOf(thinned_));
}

/// Of towns and lakes that can be seen as areas.
void GroundGeometryRenderer::addName(const GroundGeometryElement& ground, Map2D& map, int index, double pixels) {
    const bool isWater = ground.feature == lakeFeature;
    if (pixels < leastNamedPixels || (!isWater && ground.feature != GroundGeometryElement::OtherFeature))
        return;
    const ChartPosition &nw = ground.getBounds().northWest, &se = ground.getBounds().southEast;
    const ChartPosition middle(nw.longitude + 0.5 * Angle180(se.longitude - nw.longitude),
                               0.5 * (nw.latitude + se.latitude));
    addLabel(map, index, middle, 1.0,
             {ground.name, nameColor, isWater ? waterBackground : townBackground, nameScale, 90.0, false});
}

bool GroundGeometryRenderer::isMouseOver2D(Map2D* map, const IChartElement* element, int,
                                           const irr::core::vector2d<int>& position) {
    const auto& ground = static_cast<const GroundGeometryElement&>(*element);
    const bool isPolygon = ground.geoType == GroundGeometryElement::Polygon;
    affineOf(*map, false).project(ground.vertices, path_);
    const ShapePoint mouse(position.X, position.Y);
    return (isPolygon && isInside(path_, mouse)) || distanceToPath(path_, isPolygon, mouse) <= fingerReach(*map);
}

int GroundGeometryRenderer::getPriority(const IChartElement* element) {
    return groundPriority(static_cast<const GroundGeometryElement&>(*element).feature);
}

int GroundGeometryRenderer::getSelectPriority(const IChartElement* element) {
    return groundSelectPriority(static_cast<const GroundGeometryElement&>(*element).feature);
}

bool GroundGeometryRenderer::isPotentiallyRenderable(int index, Map2D* map, const char* staticBytes) {
    return filterOf(*map, index).showsGround(staticBytes);
}

} // namespace skyvane
