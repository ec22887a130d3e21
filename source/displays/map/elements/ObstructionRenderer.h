#pragma once

#include "displays/map/IChartElementRenderer.h"

namespace skyvane {

struct RendererParts;

/// Obstacles, coloured by how far the aircraft is above them; those close together as one.
class ObstructionRenderer : public IChartElementRenderer {
public:
    /// The parts outlive it.
    explicit ObstructionRenderer(RendererParts& parts) : parts_(parts) {}

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;

private:
    RendererParts& parts_;
};

} // namespace skyvane
