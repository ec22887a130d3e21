#include "displays/map/elements/WaypointRenderer.h"

#include "chart/elements/WaypointElement.h"
#include "displays/map/elements/RendererParts.h"

namespace skyvane {

namespace {

const irr::video::SColor fixColor(0xff33f8ff), reportingColor(0xffffffff);

/// Reporting points are filled, other fixes aren't; what has no name of its own is a cross.
const char* symbolOf(const WaypointElement& waypoint) {
    if (!waypoint.isPublic)
        return "fix_plain";
    return waypoint.isReportingPoint ? "reporting_point" : "fix";
}

} // namespace

void WaypointRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& waypoint = static_cast<const WaypointElement&>(*element);
    const irr::video::SColor color = waypoint.isReportingPoint ? reportingColor : fixColor;
    renderPointSketch(parts_, rect, parts_.textures.get(symbolOf(waypoint)), {color, darkHalo},
                      {waypoint.isPublic ? waypoint.ident : std::string()});
}

} // namespace skyvane
