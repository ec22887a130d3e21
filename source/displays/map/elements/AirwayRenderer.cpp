#include "displays/map/elements/AirwayRenderer.h"

#include "chart/elements/AirwayElement.h"
#include "chart/elements/AltitudeCodes.h"
#include "core/Context.h"
#include "core/text/Numbers.h"
#include "displays/map/Map2D.h"
#include "displays/map/elements/MapDrawing.h"
#include "displays/map/elements/RendererParts.h"
#include "displays/mapmath/elements/GroundShapes.h"
#include "displays/mapmath/elements/OutlineSketch.h"

namespace skyvane {

namespace {

constexpr float lineWidth = 0.0044271499999999995f; ///< Of the root of the screen's pixels.
constexpr float coreShare = 0.55f, arrowSize = 3.2f, nameScale = 0.6f;
constexpr double largestNameArea = 3.0, leastNamedPixels = 120.0;
const irr::video::SColor labelColor(0xffffffff), labelBackground(0xff2a3f5c);

/// An arrow in the middle of the segment.
void addDirection(ShapeMesh& mesh, const ShapePoint& from, const ShapePoint& to, double size, uint32_t argb) {
    ShapePoint along = to - from;
    if (along.getLength() < 3.0 * size)
        return;
    along.normalize();
    const ShapePoint middle = (from + to) / 2.0, across(along.Y, -along.X);
    const auto head = [&](double grown, uint32_t color) {
        addConvex(mesh,
                  {middle + along * (0.6 * size + grown),
                   middle - along * (0.5 * size + grown) + across * (0.5 * size + grown),
                   middle - along * (0.5 * size + grown) - across * (0.5 * size + grown)},
                  color);
    };
    head(0.14 * size, airwayCasing);
    head(0.0, argb);
}

} // namespace

void AirwayRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& airway = static_cast<const AirwayElement&>(*element);
    const SketchFrame frame = parts_.painter.frameFor(rect);
    SketchKey key(frame);
    key.add(static_cast<const void*>(parts_.context->getFlexibleFont()));
    key.add(airway.name);
    key.add(airway.start);
    key.add(airway.end);
    key.add(airway.isOneDirection);
    key.add(airway.isLowAltitude);
    key.add(airway.minimumEnroute.isAvailable);
    key.add(airway.minimumEnroute.feet);
    key.add(airway.minimumObstructionClearance.isAvailable);
    key.add(airway.minimumObstructionClearance.feet);
    key.add(airway.maximumAuthorised.isAvailable);
    key.add(airway.maximumAuthorised.feet);
    parts_.painter.draw(sketch_.get(key, [&] { return planAirwaySketch(airway, frame); }), rect);
}

void AirwayRenderer::render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) {
    const auto& airway = static_cast<const AirwayElement&>(*element);
    const MapAffine affine = affineOf(*map, intoRTT);
    ShapePath path;
    affine.project({airway.start, airway.end}, path);
    const ShapeRect view = viewOf(*map, intoRTT);
    const float width = lineWidth * map->getScreenUnit();
    addStroke(mesh_, path, {width, selected ? selectionColor : airwayCasing, false, 0.0f, 0.0f}, view);
    addStroke(mesh_, path, {coreShare * width, airwayColor(airway.isLowAltitude), false, 0.0f, 0.0f}, view);
    if (airway.isOneDirection)
        addDirection(mesh_, path[0], path[1], arrowSize * width, airwayColor(airway.isLowAltitude));
    drawShapes(*map, mesh_);
    if (selected || map->getViewArea() > largestNameArea || path[0].getDistanceFrom(path[1]) < leastNamedPixels)
        return;
    const int altitude = displayedAltitude(airway.minimumEnroute.feet, map->isMetric());
    addLabel(*map, index, airway.getPosition(), width,
             {airway.name + (airway.minimumEnroute.isAvailable ? "  " + toText(altitude) : ""), labelColor,
              labelBackground, nameScale, 90.0, false});
}

bool AirwayRenderer::isMouseOver2D(Map2D* map, const IChartElement* element, int,
                                   const irr::core::vector2d<int>& position) {
    const auto& airway = static_cast<const AirwayElement&>(*element);
    ShapePath path;
    affineOf(*map, false).project({airway.start, airway.end}, path);
    return distanceToPath(path, false, ShapePoint(position.X, position.Y)) <= fingerReach(*map);
}

bool AirwayRenderer::isPotentiallyRenderable(int index, Map2D* map, const char* staticBytes) {
    return filterOf(*map, index).showsAirway(staticBytes);
}

} // namespace skyvane
