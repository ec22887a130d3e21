#pragma once

#include "displays/map/elements/FixRenderer.h"

namespace skyvane {

/// NDBs.
class NDBRenderer : public FixRenderer {
public:
    explicit NDBRenderer(RendererParts& parts);

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;
    void render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) override;
    int getPriority(const IChartElement*) override { return 900; }
    int getSelectPriority(const IChartElement*) override { return 102210; }

protected:
    const std::string& identOf(const IChartElement& element) const override;
};

} // namespace skyvane
