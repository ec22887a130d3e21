#include "displays/map/elements/MarkRenderer.h"

#include "chart/elements/MarkElement.h"
#include "displays/map/elements/RendererParts.h"

namespace skyvane {

void MarkRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& mark = static_cast<const MarkElement&>(*element);
    renderPointSketch(parts_, rect, {parts_.textures.getPicture("mark"), nullptr}, {}, {mark.name});
}

} // namespace skyvane
