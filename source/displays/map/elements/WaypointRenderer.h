#pragma once

#include "displays/map/elements/FixRenderer.h"

namespace skyvane {

/// Fixes and reporting points.
class WaypointRenderer : public FixRenderer {
public:
    explicit WaypointRenderer(RendererParts& parts);

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;
    void render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) override;
    int getPriority(const IChartElement*) override { return 800; }
    int getSelectPriority(const IChartElement* element) override;

protected:
    const std::string& identOf(const IChartElement& element) const override;
};

} // namespace skyvane
