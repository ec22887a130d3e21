#include "displays/map/elements/AirspaceRenderer.h"

#include "chart/elements/AirspaceElement.h"
#include "displays/map/elements/RendererParts.h"
#include "displays/mapmath/elements/OutlineSketch.h"

namespace skyvane {

void AirspaceRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& airspace = static_cast<const AirspaceElement&>(*element);
    parts_.painter.draw(planAirspaceSketch(airspace, parts_.painter.frameFor(rect)), rect);
}

} // namespace skyvane
