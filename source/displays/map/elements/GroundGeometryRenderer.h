#pragma once

#include "displays/map/IChartElementRenderer.h"
#include "displays/map/elements/GroundFills.h"
#include "displays/mapmath/elements/SketchCache.h"
#include "displays/shapes/Strokes.h"

namespace skyvane {

class GroundGeometryElement;
struct RendererParts;

/// Roads, water, borders, and what lies on the ground of airports.
class GroundGeometryRenderer : public IChartElementRenderer {
public:
    /// The parts outlive it.
    explicit GroundGeometryRenderer(RendererParts& parts) : parts_(parts) {}

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;
    void render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) override;
    bool isMouseOver2D(Map2D* map, const IChartElement* element, int index,
                       const irr::core::vector2d<int>& position) override;
    int getPriority(const IChartElement* element) override;
    int getSelectPriority(const IChartElement* element) override;
    bool isPotentiallyRenderable(int index, Map2D* map, const char* staticBytes) override;
    bool OnFrame2D() override { return fills_.goOn(); }

private:
    void addName(const GroundGeometryElement& ground, Map2D& map, int index, double pixels);

    RendererParts& parts_;
    SketchCache sketch_;
    GroundFills fills_;
    ShapeMesh mesh_;
    ShapePath path_, thinned_;
};

} // namespace skyvane
