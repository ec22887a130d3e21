#include "displays/map/elements/WaypointRenderer.h"

#include "chart/elements/WaypointElement.h"
#include "displays/map/Map2D.h"
#include "displays/map/elements/MapDrawing.h"
#include "displays/map/elements/RendererParts.h"

namespace skyvane {

namespace {

const irr::video::SColor fixColor(0xff33f8ff), reportingColor(0xffffffff), labelBackground(0xff12303a);
constexpr int sceneImportance = 1;
constexpr int namedPriority = 102310, plainPriority = 101910;
constexpr double namedSize = 0.8, plainSize = 0.5; ///< Times the usual symbol.

/// Reporting points are filled, other fixes aren't; what has no name of its own is a cross.
const char* symbolOf(const WaypointElement& waypoint) {
    if (!waypoint.isPublic)
        return "fix_plain";
    return waypoint.isReportingPoint ? "reporting_point" : "fix";
}

} // namespace

WaypointRenderer::WaypointRenderer(RendererParts& parts)
    : FixRenderer(parts, {Kind::Waypoint, namedSize, fixColor, sceneImportance}) {}

void WaypointRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& waypoint = static_cast<const WaypointElement&>(*element);
    const irr::video::SColor color = waypoint.isReportingPoint ? reportingColor : fixColor;
    renderPointSketch(parts_, rect, parts_.textures.get(symbolOf(waypoint)), {color, darkHalo},
                      {waypoint.isPublic ? waypoint.ident : std::string()});
}

void WaypointRenderer::render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) {
    const auto& waypoint = static_cast<const WaypointElement&>(*element);
    const double edge = (waypoint.isPublic ? namedSize : plainSize) * navaidEdge(*map);
    if (!map->isInside(waypoint.position, edge, edge, intoRTT))
        return;
    const ShapePoint middle = affineOf(*map, intoRTT).toPixels(waypoint.position);
    const irr::video::SColor color = waypoint.isReportingPoint ? reportingColor : fixColor;
    drawSymbol(*map, parts_.textures.get(symbolOf(waypoint)), middle, edge, {color, darkHalo}, intoRTT);
    if (selected)
        return drawSelectionRing(*map, middle, edge);
    const bool isTarget = map->isProcedureTarget(index);
    if (waypoint.isPublic && (isTarget || map->getViewArea() <= largestWaypointLabelArea))
        addLabel(*map, index, waypoint.position, edge, {waypoint.ident, color, labelBackground, 0.8f, 60.0, isTarget});
}

int WaypointRenderer::getSelectPriority(const IChartElement* element) {
    return static_cast<const WaypointElement&>(*element).isPublic ? namedPriority : plainPriority;
}

const std::string& WaypointRenderer::identOf(const IChartElement& element) const {
    return static_cast<const WaypointElement&>(element).ident;
}

} // namespace skyvane
