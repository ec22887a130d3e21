#pragma once

#include "displays/map/IChartElementRenderer.h"

namespace skyvane {

struct RendererParts;

/// Airways: a line by level, its name and lowest altitude.
class AirwayRenderer : public IChartElementRenderer {
public:
    /// The parts outlive it.
    explicit AirwayRenderer(RendererParts& parts) : parts_(parts) {}

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;

private:
    RendererParts& parts_;
};

} // namespace skyvane
