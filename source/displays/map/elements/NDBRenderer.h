#pragma once

#include "displays/map/IChartElementRenderer.h"

namespace skyvane {

struct RendererParts;

/// NDBs.
class NDBRenderer : public IChartElementRenderer {
public:
    /// The parts outlive it.
    explicit NDBRenderer(RendererParts& parts) : parts_(parts) {}

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;
    void render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) override;
    bool isMouseOver2D(Map2D* map, const IChartElement* element, int index,
                       const irr::core::vector2d<int>& position) override;
    int getPriority(const IChartElement*) override { return 900; }
    int getSelectPriority(const IChartElement*) override { return 102210; }
    bool isPotentiallyRenderable(int index, Map2D* map, const char* staticBytes) override;
    bool isPotentiallyRenderable3D(int index, Map3D* map, const char* staticBytes) override;
    void render3D(const IChartElement* element, Map3D* map, int index) override;

private:
    RendererParts& parts_;
};

} // namespace skyvane
