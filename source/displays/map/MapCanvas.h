#pragma once

#include "displays/mapmath/MapBox.h"
#include "displays/mapmath/MapView.h"

namespace skyvane {

/// On what a map's contents are being drawn: the panel, or a tile. Positions are pixels of its viewport.
class MapCanvas {
public:
    explicit MapCanvas(const MapView& view) : view_(view) {}

    /// `box` is the tile's own, `drawnBox` has the margin in which symbols still reach into it.
    void setTile(const MapBox& box, const MapBox& drawnBox, int edge) {
        tile_ = FlatProjection(box, edge, edge);
        tileDrawnBox_ = drawnBox;
        tileEdge_ = edge;
    }
    /// Once a frame, after the view is known.
    void setPanelBox(const MapBox& drawnBox) { panelDrawnBox_ = drawnBox; }

    irr::core::vector2d<double> toPixels(const ChartPosition& position, bool intoRTT) const {
        return intoRTT ? tile_.toPixels(position) : view_.toPanel(position);
    }
    ChartPosition toChart(const irr::core::vector2d<double>& point, bool intoRTT) const {
        return intoRTT ? tile_.toChart(point) : view_.toChart(point);
    }
    const MapBox& getDrawnBox(bool intoRTT) const { return intoRTT ? tileDrawnBox_ : panelDrawnBox_; }
    irr::core::dimension2d<int> getSize(bool intoRTT) const {
        return intoRTT ? irr::core::dimension2d<int>(tileEdge_, tileEdge_)
                       : irr::core::dimension2d<int>(view_.getPanel().width, view_.getPanel().height);
    }

private:
    const MapView& view_;
    FlatProjection tile_;
    MapBox tileDrawnBox_;
    MapBox panelDrawnBox_;
    int tileEdge_ = 1;
};

} // namespace skyvane
