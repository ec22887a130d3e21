#pragma once

#include "displays/map/IChartElementRenderer.h"

namespace skyvane {

struct RendererParts;

/// Fixes and reporting points.
class WaypointRenderer : public IChartElementRenderer {
public:
    /// The parts outlive it.
    explicit WaypointRenderer(RendererParts& parts) : parts_(parts) {}

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;

private:
    RendererParts& parts_;
};

} // namespace skyvane
