#include "displays/map/elements/MarkRenderer.h"

#include "chart/elements/MarkElement.h"
#include "displays/map/Map2D.h"
#include "displays/map/elements/MapDrawing.h"
#include "displays/map/elements/RendererParts.h"

namespace skyvane {

namespace {

const irr::video::SColor labelColor(0xffffffff), labelBackground(0xffa8142a);
constexpr double symbolSize = 1.5; ///< Times the usual symbol.

} // namespace

void MarkRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& mark = static_cast<const MarkElement&>(*element);
    renderPointSketch(parts_, rect, {parts_.textures.getPicture("mark"), nullptr}, {}, {mark.name});
}

void MarkRenderer::render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) {
    const auto& mark = static_cast<const MarkElement&>(*element);
    const double edge = symbolSize * map->getElementSizePx();
    if (!map->isInside(mark.position, edge, edge, intoRTT))
        return;
    const ShapePoint middle = affineOf(*map, intoRTT).toPixels(mark.position);
    drawSymbol(*map, {parts_.textures.getPicture("mark"), nullptr}, middle, edge, {}, intoRTT);
    if (selected)
        return drawSelectionRing(*map, middle, edge);
    const bool isTarget = map->isProcedureTarget(index);
    if (isTarget || map->getViewArea() <= largestMarkLabelArea)
        addLabel(*map, index, mark.position, edge, {mark.name, labelColor, labelBackground, 0.9f, 0.0, isTarget});
}

bool MarkRenderer::isMouseOver2D(Map2D* map, const IChartElement* element, int,
                                 const irr::core::vector2d<int>& position) {
    return isMouseOverSymbol(*map, element->getPosition(), map->getElementSizePx(), position);
}

bool MarkRenderer::isPotentiallyRenderable(int index, Map2D* map, const char*) {
    return filterOf(*map, index).showsMark();
}

} // namespace skyvane
