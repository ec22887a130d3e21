#include "displays/map/elements/ObstructionRenderer.h"

#include "chart/elements/AltitudeCodes.h"
#include "chart/elements/ObstructionElement.h"
#include "core/Context.h"
#include "core/text/Numbers.h"
#include "displays/PanelManager.h"
#include "displays/map/elements/RendererParts.h"

namespace skyvane {

namespace {

constexpr int tallFeet = 500;
const irr::video::SColor plainColor(0xffffb000);

/// By shape: tall, in a group, lit.
const char* symbolOf(bool isTall, bool isGroup, bool isLit) {
    static constexpr const char* names[2][2][2] = {
        {{"obstacle", "obstacle_lit"}, {"obstacle_group", "obstacle_group_lit"}},
        {{"obstacle_tall", "obstacle_tall_lit"}, {"obstacle_tall_group", "obstacle_tall_group_lit"}}};
    return names[isTall][isGroup][isLit];
}

} // namespace

void ObstructionRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& obstruction = static_cast<const ObstructionElement&>(*element);
    const bool metric = parts_.context->getPanelManager()->isMetric();
    const char* unit = metric ? " m" : " ft";
    const bool isTall = obstruction.heightAglFeet >= tallFeet;
    const ElementSymbol& symbol =
        parts_.textures.get(symbolOf(isTall, obstruction.isGroup, obstruction.hasKnownLighting));
    renderPointSketch(parts_, rect, symbol, {plainColor, darkHalo},
                      {toText(displayedAltitude(obstruction.altitudeMslFeet, metric)) + unit + " MSL",
                       toText(displayedAltitude(obstruction.heightAglFeet, metric)) + unit + " AGL"});
}

} // namespace skyvane
