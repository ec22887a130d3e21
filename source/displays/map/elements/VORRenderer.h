#pragma once

#include "displays/map/elements/FixRenderer.h"

namespace skyvane {

/// VORs and their kin: a symbol by kind, a compass rose around it in near views.
class VORRenderer : public FixRenderer {
public:
    explicit VORRenderer(RendererParts& parts);

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;
    void render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) override;
    int getPriority(const IChartElement*) override { return 1000; }
    int getSelectPriority(const IChartElement*) override { return 102410; }

protected:
    const std::string& identOf(const IChartElement& element) const override;
};

} // namespace skyvane
