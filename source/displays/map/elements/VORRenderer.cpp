#include "displays/map/elements/VORRenderer.h"

#include "chart/elements/VORElement.h"
#include "core/text/Numbers.h"
#include "displays/map/elements/RendererParts.h"

namespace skyvane {

namespace {

const irr::video::SColor vorColor(0xff0000ff);

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

void VORRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& vor = static_cast<const VORElement&>(*element);
    renderPointSketch(parts_, rect, parts_.textures.get(symbolOf(vor)), {vorColor, lightHalo},
                      {vor.ident, frequencyText(vor), vor.name});
}

} // namespace skyvane
