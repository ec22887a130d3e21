// How fixes and navaids look in a synthetic view: a diamond above the ground, in the colour of the kind.
#include "chart/elements/NDBElement.h"
#include "chart/elements/VORElement.h"
#include "chart/elements/WaypointElement.h"
#include "core/Context.h"
#include "displays/map/elements/NDBRenderer.h"
#include "displays/map/elements/RendererParts.h"
#include "displays/map/elements/VORRenderer.h"
#include "displays/map/elements/WaypointRenderer.h"
#include "displays/vision/Map3D.h"
#include "displays/visionmath/VisionFilter.h"
#include "procedures/ProcedureManager.h"

#include <algorithm>

namespace skyvane {
namespace {

struct FixLook {
    irr::video::SColor color;
    int importance;
};
constexpr int targetImportance = 9;

/// Where nobody knows the ground it stands at the aircraft's height: far off, that is on the horizon.
void renderFix(const RendererParts& parts, Map3D& map, const IChartElement& element, const std::string& ident,
               int index, const FixLook& look) {
    ElementScene& scene = map.getElements();
    SceneShapes::Place place = scene.getPlace(element.getPosition(), 0.0);
    constexpr double radiusShare = 0.006, leastRadius = 25.0, above = 2.5;
    const double radius = std::max(leastRadius, radiusShare * ElementScene::getDistance(place));
    place.Y = scene.getGround(place, scene.getAircraftHeight() - above * radius) + above * radius;
    scene.getShapes().addDiamond(place, radius, 1.5 * radius, look.color.color);
    const bool isTarget = parts.context->getProcedureManager()->isProcedureTarget(index);
    scene.addLabel(place, ident, look.color, isTarget ? targetImportance : look.importance, index);
}

VisionFilter filterOf(const RendererParts& parts, const Map3D& map, int index) {
    return {map.getSwitches(), parts.context->getProcedureManager()->isProcedureTarget(index)};
}

} // namespace

bool VORRenderer::isPotentiallyRenderable3D(int index, Map3D* map, const char* staticBytes) {
    return filterOf(parts_, *map, index).showsNavaid(staticBytes);
}

void VORRenderer::render3D(const IChartElement* element, Map3D* map, int index) {
    renderFix(parts_, *map, *element, static_cast<const VORElement*>(element)->ident, index,
              {irr::video::SColor(0xff7fa8ff), 2});
}

bool NDBRenderer::isPotentiallyRenderable3D(int index, Map3D* map, const char* staticBytes) {
    return filterOf(parts_, *map, index).showsNavaid(staticBytes);
}

void NDBRenderer::render3D(const IChartElement* element, Map3D* map, int index) {
    renderFix(parts_, *map, *element, static_cast<const NDBElement*>(element)->ident, index,
              {irr::video::SColor(0xfffa6cff), 2});
}

bool WaypointRenderer::isPotentiallyRenderable3D(int index, Map3D* map, const char* staticBytes) {
    return filterOf(parts_, *map, index).showsWaypoint(staticBytes);
}

void WaypointRenderer::render3D(const IChartElement* element, Map3D* map, int index) {
    renderFix(parts_, *map, *element, static_cast<const WaypointElement*>(element)->ident, index,
              {irr::video::SColor(0xff33f8ff), 1});
}

} // namespace skyvane
