#include "displays/map/elements/GroundGeometryRenderer.h"

#include "chart/elements/GroundGeometryElement.h"
#include "displays/map/elements/RendererParts.h"
#include "displays/mapmath/elements/OutlineSketch.h"

namespace skyvane {

void GroundGeometryRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& ground = static_cast<const GroundGeometryElement&>(*element);
    parts_.painter.draw(planGroundSketch(ground, parts_.painter.frameFor(rect)), rect);
}

} // namespace skyvane
