#pragma once

#include "core/geometry/EngineMath.h"

#include <cstdint>
#include <map>

namespace skyvane {

/// What fingers and the mouse do to a map, as a state machine of plain values: it draws nothing and changes no view.
///
///     const MapGesture gesture = gestures.release(point, milliseconds);
///     if (gesture.kind == MapGesture::Tap) view.centreOn(view.toChart(gesture.point));
struct MapGesture {
    enum Kind {
        NotMine,           ///< The event travels on.
        Consumed,          ///< The map's, and nothing else happens.
        LeaveFollowing,    ///< The map was pressed at `point`.
        ToggleOrientation, ///< The compass button.
        Zoom,              ///< To `zoom`.
        ZoomEnd,           ///< A zoom has ended.
        Drag,              ///< The finger has moved by `point` since the press.
        DragEnd,           ///< ...and was lifted there.
        Tap,               ///< At `point`.
        PinchStart         ///< A second finger came down: what the press began doesn't count.
    };
    Kind kind = NotMine;
    irr::core::vector2d<double> point;
    double zoom = 0.0;
};

/// See MapGesture. Points are pixels of the panel, times milliseconds of one clock. A panel's size and its control
/// places are handed in before the events. No allocation but for fingers.
class MapGestures {
public:
    using Point = irr::core::vector2d<double>;
    using Rect = irr::core::rect<double>;

    struct Places {
        Point size;   ///< Of the panel.
        Rect compass; ///< Empty while there is none.
        Rect zoomBar;
    };

    void setPlaces(const Places& places) { places_ = places; }

    /// `zoom` is the view's present one.
    MapGesture press(const Point& point, unsigned milliseconds, double zoom);
    MapGesture move(const Point& point);
    MapGesture release(const Point& point, unsigned milliseconds);
    /// One step of a wheel or a button.
    static double stepZoom(double zoom, double steps);

    MapGesture fingerDown(uint32_t id, const Point& point, double zoom);
    MapGesture fingerMoved(uint32_t id, const Point& point);
    MapGesture fingerUp(uint32_t id);

    bool isPinching() const { return pinching_; }
    bool isZoomBarUsed() const { return state_ == State::ZoomBar; }
    bool isCompassPressed() const { return state_ == State::Compass; }
    /// Whatever was going on ends here: the page was turned, or a window opened.
    void reset();

private:
    enum class State { Idle, Compass, ZoomBar, Map };

    double fingerDistance() const;
    MapGesture zoomBarMoved(const Point& point);

    Places places_;
    State state_ = State::Idle;
    Point pressed_;
    unsigned pressedMilliseconds_ = 0;
    double startZoom_ = 1.0;
    double lastZoom_ = 1.0;
    std::map<uint32_t, Point> fingers_;
    bool pinching_ = false;
    double pinchDistance_ = 1.0;
};

} // namespace skyvane
