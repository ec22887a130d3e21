#include "displays/map/elements/AirwayRenderer.h"

#include "chart/elements/AirwayElement.h"
#include "displays/map/elements/RendererParts.h"
#include "displays/mapmath/elements/OutlineSketch.h"

namespace skyvane {

void AirwayRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& airway = static_cast<const AirwayElement&>(*element);
    parts_.painter.draw(planAirwaySketch(airway, parts_.painter.frameFor(rect)), rect);
}

} // namespace skyvane
