#pragma once

#include "displays/map/IChartElementRenderer.h"
#include "displays/mapmath/elements/ObstructionGroups.h"

#include <map>

namespace skyvane {

struct RendererParts;

/// Obstacles, coloured by how far the aircraft is above them; those close together as one.
class ObstructionRenderer : public IChartElementRenderer {
public:
    /// The parts outlive it.
    explicit ObstructionRenderer(RendererParts& parts) : parts_(parts) {}

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;
    void render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) override;
    bool isMouseOver2D(Map2D* map, const IChartElement* element, int index,
                       const irr::core::vector2d<int>& position) override;
    int getPriority(const IChartElement*) override { return 350; }
    int getSelectPriority(const IChartElement*) override { return 399; }
    void OnPostPriority2D(Map2D* map, int priority) override;
    bool will2DMapChange(Map2D* map, const IChartElement* element, double fromAltitudeMetres,
                         double toAltitudeMetres) override;
    bool may2DMapPotentiallyChange(Map2D* map, const char* staticBytes, double fromAltitudeMetres,
                                   double toAltitudeMetres) override;
    bool isPotentiallyRenderable(int index, Map2D* map, const char* staticBytes) override;

    /// By how far its top lies below the aircraft, in metres.
    static irr::video::SColor calcColor(double metresBelow);
    bool isPotentiallyRenderable3D(int index, Map3D* map, const char* staticBytes) override;
    void render3D(const IChartElement* element, Map3D* map, int index) override;

private:
    struct Shape {
        bool isTall;
        bool isGroup;
        bool isLit;
        bool intoRTT;
    };
    void drawObstruction(Map2D& map, const ShapePoint& middle, int topFeet, const Shape& shape);

    RendererParts& parts_;
    std::map<const Map2D*, ObstructionGroups> groups_; ///< Of the tiles that maps are drawing.
};

} // namespace skyvane
