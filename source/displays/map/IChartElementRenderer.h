#pragma once

#include "chart/elements/IChartElement.h"

#include <irrlicht.h>

namespace skyvane {

class Map2D;
class Map3D;

/// Draws one kind of chart element: on the map, in the synthetic view and as a small picture.
///
/// Context has one for each kind, shared by all displays: Context::getChartElementRenderer(element->getType()). A
/// display first offers an element's static bytes (see IChartElement::writeStaticData), fetches the element only when
/// they may be worth drawing, and orders what it fetched by getPriority(). Every operation does nothing, or answers no,
/// unless the kind says otherwise. Elements belong to the chart and are used within the call only; they are of the
/// renderer's kind. `index` is the element's id in the chart. Main thread only.
class IChartElementRenderer {
public:
    /// A picture of the element for previews, fitted into `rect`, in pixels of the current viewport; cut at its edges.
    virtual void renderSketch(const IChartElement*, const irr::core::rect<int>& /*rect*/) {}
    /// Into the synthetic view, labels through Map3D::renderLabel.
    virtual void render3D(const IChartElement*, Map3D*, int /*index*/) {}
    /// Onto the map: into the tile that is being drawn, or on the glass directly. `selected` is the one under the
    /// cross, drawn once more over all others.
    virtual void render2D(const IChartElement*, Map2D*, int /*index*/, bool /*intoRTT*/, bool /*selected*/) {}
    /// The label alone, for an element whose symbol is on the map already.
    virtual void render2DText(const IChartElement*, Map2D*, int /*index*/, bool /*intoRTT*/, bool /*selected*/) {}
    /// Whether a place of the map, in pixels of its viewport, hits the element as it is drawn there.
    virtual bool isMouseOver2D(Map2D*, const IChartElement*, int /*index*/,
                               const irr::core::vector2d<int>& /*position*/) {
        return false;
    }
    /// The order of drawing, low first.
    virtual int getPriority(const IChartElement*) { return 0; }
    /// Which of several elements a tap means, high first.
    virtual int getSelectPriority(const IChartElement*) { return 0; }

    /// Before the elements of a tile, or of the glass, are collected.
    virtual void OnPreRender2D() {}
    /// Before a set of tiles, or a frame without tiles, begins.
    virtual void OnPreRTTRender2D() {}
    /// After the last element of a tile, or of the glass.
    virtual void OnPostRender2D() {}
    /// After the last element of a priority, of whatever kind: what was gathered for it is drawn now.
    virtual void OnPostPriority2D(Map2D*, int /*priority*/) {}

    /// Whether the element looks another way after the aircraft went from one altitude to another, metres MSL.
    virtual bool will2DMapChange(Map2D*, const IChartElement*, double /*fromAltitudeMetres*/,
                                 double /*toAltitudeMetres*/) {
        return false;
    }
    /// The same by the static bytes: false is certain, true needs a look at the element.
    virtual bool may2DMapPotentiallyChange(Map2D*, const char* /*staticBytes*/, double /*fromAltitudeMetres*/,
                                           double /*toAltitudeMetres*/) {
        return false;
    }

    virtual ~IChartElementRenderer() = default;

    /// Whether the map may show the element in its present view. Judged without the element: cheap, and called for
    /// everything in view.
    virtual bool isPotentiallyRenderable(int /*index*/, Map2D*, const char* /*staticBytes*/) { return false; }
    virtual bool isPotentiallyRenderable3D(int /*index*/, Map3D*, const char* /*staticBytes*/) { return false; }

    /// Once a frame of a map: goes on for some milliseconds with what render2D had to leave. True when something has
    /// come to its end, so that the map is worth drawing anew.
    virtual bool OnFrame2D() { return false; }
};

} // namespace skyvane
