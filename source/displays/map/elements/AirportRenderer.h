#pragma once

#include "displays/map/IChartElementRenderer.h"
#include "displays/mapmath/elements/AirportSketchPlan.h"

namespace skyvane {

class AirportElement;
struct RendererParts;

/// Airports: the runways to scale in near views and in sketches, a symbol by surface and use in others.
class AirportRenderer : public IChartElementRenderer {
public:
    /// The parts outlive it.
    explicit AirportRenderer(RendererParts& parts) : parts_(parts) {}

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;

private:
    /// The last sketch that was drawn: displays draw the same one again and again.
    struct LastSketch {
        uint64_t key = 0;
        SketchPlan plan;
    };

    RendererParts& parts_;
    LastSketch last_;
};

} // namespace skyvane
