#include "procedures/dialogs/ElementSketch.h"

#include "chart/elements/IChartElement.h"
#include "core/Context.h"
#include "displays/map/IChartElementRenderer.h"

namespace skyvane {

void drawElementSketch(Context& context, IChartElement* element, const irr::core::rect<int>& rect) {
    if (IChartElementRenderer* renderer = context.getChartElementRenderer(element->getType()))
        renderer->renderSketch(element, rect);
}

} // namespace skyvane
