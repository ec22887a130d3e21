#pragma once

#include "displays/map/IChartElementRenderer.h"
#include "displays/mapmath/elements/SketchCache.h"
#include "displays/shapes/ShapeMesh.h"

namespace skyvane {

struct RendererParts;

/// Airways: a line by level, its name and lowest altitude.
class AirwayRenderer : public IChartElementRenderer {
public:
    /// The parts outlive it.
    explicit AirwayRenderer(RendererParts& parts) : parts_(parts) {}

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;
    void render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) override;
    bool isMouseOver2D(Map2D* map, const IChartElement* element, int index,
                       const irr::core::vector2d<int>& position) override;
    int getPriority(const IChartElement*) override { return 400; }
    int getSelectPriority(const IChartElement*) override { return 102110; }
    bool isPotentiallyRenderable(int index, Map2D* map, const char* staticBytes) override;

private:
    RendererParts& parts_;
    SketchCache sketch_;
    ShapeMesh mesh_;
};

} // namespace skyvane
