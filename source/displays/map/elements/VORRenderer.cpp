#include "displays/map/elements/VORRenderer.h"

#include "chart/elements/VORElement.h"
#include "chart/geodesy/Angles.h"
#include "core/text/Numbers.h"
#include "displays/map/Map2D.h"
#include "displays/map/elements/MapDrawing.h"
#include "displays/map/elements/RendererParts.h"

#include <cmath>

namespace skyvane {

namespace {

const irr::video::SColor vorColor(0xff0000ff), roseColor(0xe00000ff), roseHalo(0x70ffffff), labelColor(0xffffffff),
    labelBackground(0xff0000a8);
constexpr double largestRoseArea = 1.2, largestFrequencyArea = 1.0;
constexpr double roseSize = 3.4; ///< Times the symbol.

const irr::video::SColor sceneColor(0xff7fa8ff); // lighter: the sky is blue too
constexpr int sceneImportance = 2;

const char* symbolOf(const VORElement& vor) {
    switch (vor.vorType) {
    case VORElement::Vortac:
        return "vortac";
    case VORElement::VorDme:
        return "vordme";
    case VORElement::Tacan:
        return "tacan";
    default:
        return "vor";
    }
}

/// "113.70", or the channel of what has no frequency.
std::string frequencyText(const VORElement& vor) {
    if (vor.frequency == Frequency())
        return vor.tacanChannel;
    return toFixedText(vor.frequency.megahertz + vor.frequency.kilohertz / 1000.0, 2);
}

} // namespace

VORRenderer::VORRenderer(RendererParts& parts) : FixRenderer(parts, {Kind::Navaid, 1.0, sceneColor, sceneImportance}) {}

void VORRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& vor = static_cast<const VORElement&>(*element);
    renderPointSketch(parts_, rect, parts_.textures.get(symbolOf(vor)), {vorColor, lightHalo},
                      {vor.ident, frequencyText(vor), vor.name});
}

void VORRenderer::render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) {
    const auto& vor = static_cast<const VORElement&>(*element);
    const MapAffine affine = affineOf(*map, intoRTT);
    const double edge = navaidEdge(*map), reach = roseSize * edge;
    if (!map->isInside(vor.position, reach, reach, intoRTT))
        return;
    const ShapePoint middle = affine.toPixels(vor.position);
    if (map->getViewArea() <= largestRoseArea && vor.vorType != VORElement::Tacan) {
        const bool isKnown =
            std::isfinite(vor.magneticVariationDegrees) && vor.magneticVariationDegrees > UnknownVariationBelow;
        const double north = affine.getTurnDegrees() + (isKnown ? vor.magneticVariationDegrees : 0.0);
        drawTurnedSymbol(*map, parts_.textures.get("vor_rose"), middle, reach, {roseColor, roseHalo}, -north);
    }
    drawSymbol(*map, parts_.textures.get(symbolOf(vor)), middle, edge, {vorColor, lightHalo}, intoRTT);
    if (selected)
        return drawSelectionRing(*map, middle, edge);
    const std::string frequency = map->getViewArea() <= largestFrequencyArea ? "  " + frequencyText(vor) : "";
    addLabel(*map, index, vor.position, edge,
             {vor.ident + frequency, labelColor, labelBackground, 0.9f, -90.0, map->isProcedureTarget(index)});
}

const std::string& VORRenderer::identOf(const IChartElement& element) const {
    return static_cast<const VORElement&>(element).ident;
}

} // namespace skyvane
