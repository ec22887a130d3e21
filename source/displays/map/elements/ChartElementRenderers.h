#pragma once

#include "displays/map/IChartElementRenderer.h"

#include <array>
#include <memory>

namespace skyvane {

class Context;
struct RendererParts;

/// One renderer for each kind of chart element; all kinds are registered here. Main thread only.
class ChartElementRenderers {
public:
    /// The context outlives it and has its drawer.
    explicit ChartElementRenderers(Context* context);
    ~ChartElementRenderers();
    ChartElementRenderers(const ChartElementRenderers&) = delete;
    ChartElementRenderers& operator=(const ChartElementRenderers&) = delete;

    /// Never null: a number that is no type gets a renderer that draws nothing.
    IChartElementRenderer* get(IChartElement::Type type) const;

    /// In the order of the type numbers.
    template <class Call>
    void forEach(Call call) const {
        for (const auto& renderer : renderers_)
            call(*renderer);
    }

private:
    template <class Renderer>
    void add(IChartElement::Type type);

    std::unique_ptr<RendererParts> parts_;
    std::array<std::unique_ptr<IChartElementRenderer>, IChartElement::TypeCount> renderers_;
    std::unique_ptr<IChartElementRenderer> nothing_;
};

} // namespace skyvane
