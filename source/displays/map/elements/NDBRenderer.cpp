#include "displays/map/elements/NDBRenderer.h"

#include "chart/elements/NDBElement.h"
#include "displays/map/elements/RendererParts.h"

namespace skyvane {

namespace {

const irr::video::SColor ndbColor(0xfffa6cff);

} // namespace

void NDBRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& ndb = static_cast<const NDBElement&>(*element);
    renderPointSketch(parts_, rect, parts_.textures.get("ndb"), {ndbColor, darkHalo},
                      {ndb.ident, ndb.frequencyKilohertz ? ndb.getFormattedFrequency() : std::string(), ndb.name});
}

} // namespace skyvane
