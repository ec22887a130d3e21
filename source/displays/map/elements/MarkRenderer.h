#pragma once

#include "displays/map/IChartElementRenderer.h"

namespace skyvane {

struct RendererParts;

/// Places that the user marked: a flag.
class MarkRenderer : public IChartElementRenderer {
public:
    /// The parts outlive it.
    explicit MarkRenderer(RendererParts& parts) : parts_(parts) {}

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;

private:
    RendererParts& parts_;
};

} // namespace skyvane
