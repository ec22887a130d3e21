#pragma once

#include "displays/map/IChartElementRenderer.h"

namespace skyvane {

struct RendererParts;

/// Airspaces: an outline and a band inside of it, by class.
class AirspaceRenderer : public IChartElementRenderer {
public:
    /// The parts outlive it.
    explicit AirspaceRenderer(RendererParts& parts) : parts_(parts) {}

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;

private:
    RendererParts& parts_;
};

} // namespace skyvane
