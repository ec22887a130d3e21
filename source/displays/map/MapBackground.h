#pragma once

#include "core/engine/EngineRef.h"
#include "displays/mapmath/MapSettings.h"
#include "displays/mapmath/MapView.h"

#include <irrlicht.h>

namespace skyvane {

class Drawer2D;
class IChart;

/// Scanned charts at the back of a map, in tiles of about the view's scale. Main thread only.
class MapBackground {
public:
    explicit MapBackground(Drawer2D* drawer);

    /// In the panel's viewport; true when any tile was there.
    bool draw(IChart* chart, const MapView& view, MapBackdrop backdrop, irr::u8 alpha);

private:
    bool drawArea(IChart* chart, const MapView& view, int number, int levelsBelow);
    void drawTexture(irr::video::ITexture* texture, const MapBox& box, const MapView& view);

    Drawer2D* drawer_;
    EngineRef<irr::scene::SMeshBuffer> quad_;
    MapBackdrop backdrop_ = MapBackdrop::None;
    ChartPosition nw_, se_;      ///< Of the view, while it draws.
    double wantedDegrees_ = 0.5; ///< Height of a tile.
};

} // namespace skyvane
