#pragma once

#include "displays/map/IChartElementRenderer.h"

namespace skyvane {

struct RendererParts;

/// Roads, water, borders, and what lies on the ground of airports.
class GroundGeometryRenderer : public IChartElementRenderer {
public:
    /// The parts outlive it.
    explicit GroundGeometryRenderer(RendererParts& parts) : parts_(parts) {}

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;

private:
    RendererParts& parts_;
};

} // namespace skyvane
