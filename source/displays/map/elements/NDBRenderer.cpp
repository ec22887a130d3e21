#include "displays/map/elements/NDBRenderer.h"

#include "chart/elements/NDBElement.h"
#include "displays/map/Map2D.h"
#include "displays/map/elements/MapDrawing.h"
#include "displays/map/elements/RendererParts.h"

namespace skyvane {

namespace {

const irr::video::SColor ndbColor(0xfffa6cff), labelColor(0xffffffff), labelBackground(0xff7a1f80);
constexpr double largestFrequencyArea = 1.0;
constexpr int sceneImportance = 2;

} // namespace

NDBRenderer::NDBRenderer(RendererParts& parts) : FixRenderer(parts, {Kind::Navaid, 1.0, ndbColor, sceneImportance}) {}

void NDBRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& ndb = static_cast<const NDBElement&>(*element);
    renderPointSketch(parts_, rect, parts_.textures.get("ndb"), {ndbColor, darkHalo},
                      {ndb.ident, ndb.frequencyKilohertz ? ndb.getFormattedFrequency() : std::string(), ndb.name});
}

void NDBRenderer::render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) {
    const auto& ndb = static_cast<const NDBElement&>(*element);
    const double edge = navaidEdge(*map);
    if (!map->isInside(ndb.position, edge, edge, intoRTT))
        return;
    const ShapePoint middle = affineOf(*map, intoRTT).toPixels(ndb.position);
    drawSymbol(*map, parts_.textures.get("ndb"), middle, edge, {ndbColor, darkHalo}, intoRTT);
    if (selected)
        return drawSelectionRing(*map, middle, edge);
    const bool tellsFrequency = map->getViewArea() <= largestFrequencyArea && ndb.frequencyKilohertz != 0;
    addLabel(*map, index, ndb.position, edge,
             {ndb.ident + (tellsFrequency ? "  " + ndb.getFormattedFrequency() : ""), labelColor, labelBackground, 0.9f,
              -120.0, map->isProcedureTarget(index)});
}

const std::string& NDBRenderer::identOf(const IChartElement& element) const {
    return static_cast<const NDBElement&>(element).ident;
}

} // namespace skyvane
