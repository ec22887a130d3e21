#include "displays/map/elements/ChartElementRenderers.h"

namespace skyvane {

ChartElementRenderers::ChartElementRenderers(Context*) : nothing_(std::make_unique<IChartElementRenderer>()) {
    for (auto& renderer : renderers_)
        renderer = std::make_unique<IChartElementRenderer>();
}

ChartElementRenderers::~ChartElementRenderers() = default;

IChartElementRenderer* ChartElementRenderers::get(IChartElement::Type type) const {
    const auto index = static_cast<size_t>(type);
    return index < renderers_.size() ? renderers_[index].get() : nothing_.get();
}

} // namespace skyvane
