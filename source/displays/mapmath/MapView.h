#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "displays/mapmath/MapBox.h"

namespace skyvane {

enum class MapMode {
    Marker = 0,   ///< The view stays; a cross marks its middle.
    Dragging = 1, ///< A finger moves it.
    NorthUp = 2,  ///< It follows the aircraft.
    TrackUp = 3   ///< It follows and turns with it: the aircraft stands at half the width and three quarters down.
};

inline bool isFollowing(MapMode mode) {
    return mode == MapMode::NorthUp || mode == MapMode::TrackUp;
}

/// What part of the earth a map shows in its panel, and where on the panel each place lies.
///
/// The view is a box of degrees in which pixels are linear, around the aircraft or a place that stays, moved by pans.
/// Its scale (degrees a pixel) changes only in calculateResolution, so that a picture drawn once can be shifted by
/// whole pixels; its place follows with calculateViewPort, each frame:
///
///     view.setPanel({panelWidth, panelHeight, screenWidth, screenHeight});
///     view.setAircraft(position, heading);
///     view.calculateResolution();
///     view.calculateViewPort();
///     draw(view.toPanel(somewhere));
///
/// Pixels count from the panel's upper left corner. Takes any position: what isn't finite changes nothing, and at the
/// poles the view stops.
class MapView {
public:
    using Point = irr::core::vector2d<double>;

    struct Panel {
        int width = 1;
        int height = 1;
        int screenWidth = 1;
        int screenHeight = 1;
        int buttonHeight = 0;
    };

    static constexpr double smallestArea = 0.00014;
    static constexpr double largestArea = 200.0;

    MapView() = default;

    /// The first one sets the zoom that a map starts with.
    void setPanel(const Panel& panel);
    const Panel& getPanel() const { return panel_; }

    /// Where the aircraft is and its heading; the view's base follows in following modes.
    void setAircraft(const ChartPosition& position, double headingDegrees);
    const ChartPosition& getAircraft() const { return aircraft_; }
    double getHeading() const { return headingDegrees_; }

    MapMode getMode() const { return mode_; }
    void setMode(MapMode mode);
    MapMode getLastFollowMode() const { return lastFollowMode_; }
    /// From a following mode to the marker: the base stays where the aircraft was.
    void leaveFollowing();
    /// Back to the mode that was left, without pans.
    void follow();
    /// Between north and the track at the top; clears the pans.
    void toggleOrientation();
    /// The marker mode with that place in the middle.
    void centreOn(const ChartPosition& position);

    /// Pixels that a finger has moved so far: the view moves the other way, at half its speed.
    void setPan(const Point& movedPixels);
    void commitPan();
    void clearPans();

    /// Pixels a metre. False, and nothing happens, for a zoom that leads out of the range of view areas.
    bool setZoom(double zoom);
    double getZoom() const { return zoom_; }

    void calculateResolution();
    void calculateViewPort();

    const MapBox& getBox() const { return box_; }
    /// All that can come into the panel while the view turns: the box without turning, else a circle around the
    /// aircraft; with that margin in pixels.
    MapBox getReach(double marginPixels) const;
    /// Square degrees, as if the panel filled the screen.
    double getViewArea() const { return viewArea_; }
    double getMetresPerPixel() const { return metresPerPixel_; }
    double getLongitudePerPixel() const { return longitudePerPixel_; }
    double getLatitudePerPixel() const { return latitudePerPixel_; }
    /// What lies at the top, in degrees.
    double getTopTrack() const { return mode_ == MapMode::TrackUp ? headingDegrees_ : 0.0; }
    /// Where the view's middle lies on the panel: in its middle, or lower when the track is at the top.
    Point getPivot() const;

    Point toPanel(const ChartPosition& position) const;
    ChartPosition toChart(const Point& pixel) const;

private:
    double viewAreaAt(double zoom) const;

    Panel panel_;
    bool hasPanel_ = false;
    ChartPosition aircraft_;
    ChartPosition base_;
    double headingDegrees_ = 0.0;
    MapMode mode_ = MapMode::NorthUp;
    MapMode lastFollowMode_ = MapMode::NorthUp;
    ChartPosition pan_;     ///< Committed, in degrees.
    ChartPosition dragPan_; ///< In progress.
    double zoom_ = 0.01;
    double longitudePerPixel_ = 1e-3;
    double latitudePerPixel_ = 1e-3;
    double metresPerPixel_ = 100.0;
    double viewArea_ = 1.0;
    MapBox box_;
    FlatProjection projection_;
};

} // namespace skyvane
