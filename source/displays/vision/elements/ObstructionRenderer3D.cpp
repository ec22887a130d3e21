// How obstacles look in a synthetic view: spires from the ground to their tops.
#include "chart/elements/ObstructionElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "displays/map/elements/ObstructionRenderer.h"
#include "displays/mapmath/AltitudeTint.h"
#include "displays/vision/Map3D.h"
#include "displays/visionmath/VisionFilter.h"

#include <algorithm>

namespace skyvane {

bool ObstructionRenderer::isPotentiallyRenderable3D(int, Map3D* map, const char* staticBytes) {
    return VisionFilter{map->getSwitches()}.showsObstruction(staticBytes, map->getElements().getAircraftHeight());
}

/// Far ones are drawn wider than they are, so that they can be seen.
void ObstructionRenderer::render3D(const IChartElement* element, Map3D* map, int) {
    const auto& obstruction = static_cast<const ObstructionElement&>(*element);
    ElementScene& scene = map->getElements();
    const double top = obstruction.altitudeMslFeet * MetresPerFoot;
    SceneShapes::Place base =
        scene.getPlace(obstruction.position, top - std::max(obstruction.heightAglFeet, 1) * MetresPerFoot);
    base.Y = std::min(base.Y, scene.getGround(base, base.Y));
    constexpr double leastRadius = 4.0, radiusShare = 0.0016, groupOffset = 1.6;
    const double radius = std::max(leastRadius, radiusShare * ElementScene::getDistance(base));
    const uint32_t color = altitudeTint(scene.getAircraftHeight() - top);
    scene.getShapes().addSpire(base, top, radius, color);
    if (obstruction.isGroup)
        scene.getShapes().addSpire(base + SceneShapes::Place(groupOffset * radius, 0.0, 0.0),
                                   base.Y + 0.8 * (top - base.Y), radius, color);
}

} // namespace skyvane
