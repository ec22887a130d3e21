#include "displays/map/elements/ObstructionRenderer.h"

#include "chart/elements/AltitudeCodes.h"
#include "chart/elements/ObstructionElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "core/Context.h"
#include "core/text/Numbers.h"
#include "displays/PanelManager.h"
#include "displays/map/Map2D.h"
#include "displays/map/elements/MapDrawing.h"
#include "displays/map/elements/RendererParts.h"
#include "displays/mapmath/AltitudeTint.h"

#include <cmath>

namespace skyvane {

namespace {

constexpr int tallFeet = 500;
const irr::video::SColor plainColor(0xffffb000), labelColor(0xffffffff), labelBackground(0xff30261a);
constexpr double rimShare = 1.16, farShare = 0.68;
constexpr double cellShare = 0.55; ///< Of a symbol: closer ones are one.
constexpr double largestLabelArea = 0.3;
constexpr float labelScale = 0.6f;
constexpr int noElement = -9999999;

/// By shape: tall, in a group, lit.
const char* symbolOf(bool isTall, bool isGroup, bool isLit) {
    static constexpr const char* names[2][2][2] = {
        {{"obstacle", "obstacle_lit"}, {"obstacle_group", "obstacle_group_lit"}},
        {{"obstacle_tall", "obstacle_tall_lit"}, {"obstacle_tall_group", "obstacle_tall_group_lit"}}};
    return names[isTall][isGroup][isLit];
}

/// Of a symbol in pixels: smaller where a view holds many.
double edgeOn(const Map2D& map) {
    return map.getElementSizePx() * (map.getViewArea() > largestSketchArea ? farShare : 1.0);
}

} // namespace

void ObstructionRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& obstruction = static_cast<const ObstructionElement&>(*element);
    const bool metric = parts_.context->getPanelManager()->isMetric();
    const char* unit = metric ? " m" : " ft";
    const bool isTall = obstruction.heightAglFeet >= tallFeet;
    const ElementSymbol& symbol =
        parts_.textures.get(symbolOf(isTall, obstruction.isGroup, obstruction.hasKnownLighting));
    renderPointSketch(parts_, rect, symbol, {plainColor, darkHalo},
                      {toText(displayedAltitude(obstruction.altitudeMslFeet, metric)) + unit + " MSL",
                       toText(displayedAltitude(obstruction.heightAglFeet, metric)) + unit + " AGL"});
}

irr::video::SColor ObstructionRenderer::calcColor(double metresBelow) {
    return std::isfinite(metresBelow) ? irr::video::SColor(altitudeTint(metresBelow)) : plainColor;
}

void ObstructionRenderer::render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) {
    const auto& obstruction = static_cast<const ObstructionElement&>(*element);
    const double edge = edgeOn(*map);
    if (!map->isInside(obstruction.position, edge, edge, intoRTT))
        return;
    const MapAffine affine = affineOf(*map, intoRTT);
    const ShapePoint middle = affine.toPixels(obstruction.position);
    if (selected) {
        drawObstruction(
            *map, middle, obstruction.altitudeMslFeet,
            {obstruction.heightAglFeet >= tallFeet, obstruction.isGroup, obstruction.hasKnownLighting, intoRTT});
        return drawSelectionRing(*map, middle, edge);
    }
    ObstructionGroups& groups = groups_[map];
    const MapBox& box = map->getDrawnBox(intoRTT);
    const double cell = cellShare * edge;
    groups.start({box.west, box.north}, cell / affine.east.getLength(), cell / affine.north.getLength());
    groups.isIntoRTT = intoRTT;
    groups.add(obstruction, index, middle);
}

void ObstructionRenderer::OnPostPriority2D(Map2D* map, int priority) {
    const auto found = groups_.find(map);
    if (priority != getPriority(nullptr) || found == groups_.end())
        return;
    for (const ObstructionGroups::Group& group : found->second.getGroups()) {
        const auto& members = group.members;
        drawObstruction(
            *map, {members.getPosition().X, members.getPosition().Y}, members.getHighestMslFeet(),
            {members.getHighestAglFeet() >= tallFeet, members.getCount() > 1, group.isLit, found->second.isIntoRTT});
        if (map->getViewArea() <= largestLabelArea)
            addLabel(*map, group.index, group.position, 0.7 * edgeOn(*map),
                     {toText(displayedAltitude(members.getHighestMslFeet(), map->isMetric())), labelColor,
                      labelBackground, labelScale, 0.0, false});
    }
    groups_.erase(found);
}

/// Dark around it, and light around that: red shows on red ground, too.
void ObstructionRenderer::drawObstruction(Map2D& map, const ShapePoint& middle, int topFeet, const Shape& shape) {
    const ElementSymbol& symbol = parts_.textures.get(symbolOf(shape.isTall, shape.isGroup, shape.isLit));
    const double edge = edgeOn(map);
    drawSymbol(map, {symbol.halo, nullptr}, middle, rimShare * edge, {lightHalo, lightHalo}, shape.intoRTT);
    drawSymbol(map, symbol, middle, edge, {calcColor(map.getAltitude() - topFeet * MetresPerFoot), darkHalo},
               shape.intoRTT);
}

bool ObstructionRenderer::isMouseOver2D(Map2D* map, const IChartElement* element, int,
                                        const irr::core::vector2d<int>& position) {
    return isMouseOverSymbol(*map, element->getPosition(), edgeOn(*map), position);
}

bool ObstructionRenderer::will2DMapChange(Map2D* map, const IChartElement* element, double fromAltitudeMetres,
                                          double toAltitudeMetres) {
    char bytes[IChartElement::StaticDataSize];
    element->writeStaticData(bytes);
    return may2DMapPotentiallyChange(map, bytes, fromAltitudeMetres, toAltitudeMetres);
}

bool ObstructionRenderer::may2DMapPotentiallyChange(Map2D* map, const char* staticBytes, double fromAltitudeMetres,
                                                    double toAltitudeMetres) {
    const MapFilter filter = filterOf(*map, noElement);
    const bool wasShown = filter.showsObstruction(staticBytes, fromAltitudeMetres);
    const bool isShown = filter.showsObstruction(staticBytes, toAltitudeMetres);
    const double top = staticObstructionTop(staticBytes);
    return wasShown != isShown ||
           (isShown && altitudeTint(fromAltitudeMetres - top) != altitudeTint(toAltitudeMetres - top));
}

bool ObstructionRenderer::isPotentiallyRenderable(int index, Map2D* map, const char* staticBytes) {
    return filterOf(*map, index).showsObstruction(staticBytes, map->getAltitude());
}

} // namespace skyvane
