// How fixes and navaids look in a synthetic view: a diamond above the ground, in the colour of the kind.
#include "core/Context.h"
#include "displays/map/elements/FixRenderer.h"
#include "displays/map/elements/RendererParts.h"
#include "displays/vision/Map3D.h"
#include "displays/visionmath/VisionFilter.h"
#include "procedures/ProcedureManager.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr int targetImportance = 9;

bool isTarget(const RendererParts& parts, int index) {
    return parts.context->getProcedureManager()->isProcedureTarget(index);
}

} // namespace

bool FixRenderer::isPotentiallyRenderable3D(int index, Map3D* map, const char* staticBytes) {
    const VisionFilter filter{map->getSwitches(), isTarget(parts_, index)};
    return traits_.kind == Kind::Navaid ? filter.showsNavaid(staticBytes) : filter.showsWaypoint(staticBytes);
}

/// Where nobody knows the ground it stands at the aircraft's height: far off, that is on the horizon.
void FixRenderer::render3D(const IChartElement* element, Map3D* map, int index) {
    ElementScene& scene = map->getElements();
    SceneShapes::Place place = scene.getPlace(element->getPosition(), 0.0);
    constexpr double radiusShare = 0.006, leastRadius = 25.0, above = 2.5;
    const double radius = std::max(leastRadius, radiusShare * ElementScene::getDistance(place));
    place.Y = scene.getGround(place, scene.getAircraftHeight() - above * radius) + above * radius;
    scene.getShapes().addDiamond(place, radius, 1.5 * radius, traits_.sceneColor.color);
    scene.addLabel(place, identOf(*element), traits_.sceneColor,
                   isTarget(parts_, index) ? targetImportance : traits_.sceneImportance, index);
}

} // namespace skyvane
