#include "displays/map/elements/FixRenderer.h"

#include "displays/map/Map2D.h"
#include "displays/map/elements/MapDrawing.h"

namespace skyvane {

bool FixRenderer::isMouseOver2D(Map2D* map, const IChartElement* element, int,
                                const irr::core::vector2d<int>& position) {
    return isMouseOverSymbol(*map, element->getPosition(), traits_.symbolSize * navaidEdge(*map), position);
}

bool FixRenderer::isPotentiallyRenderable(int index, Map2D* map, const char* staticBytes) {
    const MapFilter filter = filterOf(*map, index);
    return traits_.kind == Kind::Navaid ? filter.showsNavaid(staticBytes) : filter.showsWaypoint(staticBytes);
}

} // namespace skyvane
