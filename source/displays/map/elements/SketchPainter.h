#pragma once

#include "displays/mapmath/elements/AirportSketchPlan.h"
#include "gui/font/CachedText.h"

#include <irrlicht.h>
#include <vector>

namespace skyvane {

class Context;

/// Draws a SketchPlan, keeping the meshes of its texts. Main thread only.
class SketchPainter {
public:
    /// The context outlives it.
    explicit SketchPainter(Context* context) : context_(context) {}

    /// For a plan of that size, with the present font and units.
    SketchFrame frameFor(const irr::core::rect<int>& rect) const;
    /// Into a rectangle of the current viewport, cut at its edges. Allocates nothing while the same plan is drawn
    /// again.
    void draw(const SketchPlan& plan, const irr::core::rect<int>& rect);
    /// A picture in the sketch, between shapes and texts: its middle and edge in pixels of the sketch, tinted.
    void setPicture(irr::video::ITexture* texture, const ShapePoint& middle, double edge, irr::video::SColor color);

private:
    void drawTexts(const SketchPlan& plan, const irr::core::rect<int>& place);

    struct Picture {
        irr::video::ITexture* texture;
        irr::core::rect<int> place;
        irr::video::SColor color;
    };

    struct Text {
        std::string words; ///< As they were set.
        CachedText mesh;
    };

    Context* context_;
    std::vector<std::unique_ptr<Text>> texts_;
    std::vector<Picture> pictures_;
};

} // namespace skyvane
