#include "displays/map/elements/ChartElementRenderers.h"

#include "displays/map/elements/AirportRenderer.h"
#include "displays/map/elements/RendererParts.h"

namespace skyvane {

ChartElementRenderers::ChartElementRenderers(Context* context)
    : parts_(std::make_unique<RendererParts>(context)), nothing_(std::make_unique<IChartElementRenderer>()) {
    for (auto& renderer : renderers_)
        renderer = std::make_unique<IChartElementRenderer>();
    add<AirportRenderer>(IChartElement::AIRPORT);
}

ChartElementRenderers::~ChartElementRenderers() = default;

template <class Renderer>
void ChartElementRenderers::add(IChartElement::Type type) {
    renderers_[static_cast<size_t>(type)] = std::make_unique<Renderer>(*parts_);
}

IChartElementRenderer* ChartElementRenderers::get(IChartElement::Type type) const {
    const auto index = static_cast<size_t>(type);
    return index < renderers_.size() ? renderers_[index].get() : nothing_.get();
}

} // namespace skyvane
