#pragma once

#include "chart/elements/AirspaceElement.h"
#include "displays/map/IChartElementRenderer.h"
#include "displays/mapmath/elements/SketchCache.h"
#include "displays/shapes/Strokes.h"

#include <array>

namespace skyvane {

struct MapAffine;
struct RendererParts;

/// Airspaces: an outline and a band inside of it, by class.
class AirspaceRenderer : public IChartElementRenderer {
public:
    /// The parts outlive it.
    explicit AirspaceRenderer(RendererParts& parts) : parts_(parts) {}

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;
    void render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) override;
    bool isMouseOver2D(Map2D* map, const IChartElement* element, int index,
                       const irr::core::vector2d<int>& position) override;
    int getPriority(const IChartElement* element) override;
    int getSelectPriority(const IChartElement* element) override;
    void OnPreRender2D() override;
    bool isPotentiallyRenderable(int index, Map2D* map, const char* staticBytes) override;

    /// A slice of the airspace in a side view: the rectangle between its limits, in pixels of the current viewport,
    /// with class and limits where there is room.
    void renderSide(const IChartElement* element, const irr::core::rect<int>& rect);

    /// The colour of the outline, its width in pixels on a map, and how broad the band is, 1 for the usual.
    static void calcColor(const IChartElement* element, const Map2D& map, irr::video::SColor& color, float& width,
                          float& bandFactor);

private:
    bool isIrrelevant(const std::string& airspaceClass) const;
    void addClassLabel(const AirspaceElement& airspace, Map2D& map, int index, const MapAffine& affine);

    RendererParts& parts_;
    SketchCache sketch_;
    std::array<bool, AirspaceElement::StaticClassCount> irrelevant_{}; ///< By the class of static bytes.
    ShapeMesh mesh_;
    ShapePath path_, thinned_;
};

} // namespace skyvane
