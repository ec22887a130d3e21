#pragma once

#include "chart/elements/AirspaceElement.h"
#include "displays/map/IChartElementRenderer.h"
#include "displays/mapmath/elements/SketchCache.h"
#include "displays/shapes/Strokes.h"

#include <array>

namespace skyvane {

struct AirspaceStyle;
struct MapAffine;
class PanelManager;
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

    /// Appends a slice of an airspace in a side view: the band between its upper and lower edge, given from left to
    /// right with as many points each, and its outline, as far as they lie in the view.
    static void renderSide(ShapeMesh& mesh, const AirspaceStyle& style, const ShapePath& upper, const ShapePath& lower,
                           const ShapeRect& view);

    /// Whether the pilot doesn't want to see airspaces of that class.
    static bool isIrrelevant(const PanelManager& panels, const std::string& airspaceClass);
    /// The colour of the outline, its width in pixels on a map, and how broad the band is, 1 for the usual.
    static void calcColor(const IChartElement* element, const Map2D& map, irr::video::SColor& color, float& width,
                          float& bandFactor);

private:
    /// What the static bytes can't tell: they know neither all classes nor floors above 29,500 feet.
    bool isWanted(const AirspaceElement& airspace, const Map2D& map) const;
    void addClassLabel(const AirspaceElement& airspace, Map2D& map, int index, const MapAffine& affine);

    RendererParts& parts_;
    SketchCache sketch_;
    std::array<bool, AirspaceElement::StaticClassCount> irrelevant_{}; ///< By the class of static bytes.
    ShapeMesh mesh_;
    ShapePath path_, thinned_;
};

} // namespace skyvane
