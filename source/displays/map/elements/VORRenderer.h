#pragma once

#include "displays/map/IChartElementRenderer.h"

namespace skyvane {

struct RendererParts;

/// VORs and their kin: a symbol by kind, a compass rose around it in near views.
class VORRenderer : public IChartElementRenderer {
public:
    /// The parts outlive it.
    explicit VORRenderer(RendererParts& parts) : parts_(parts) {}

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;

private:
    RendererParts& parts_;
};

} // namespace skyvane
