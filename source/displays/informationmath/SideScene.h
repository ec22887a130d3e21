#pragma once

#include "displays/informationmath/RoutePlace.h"
#include "displays/informationmath/SideAirspaces.h"
#include "displays/informationmath/SideReadings.h"
#include "displays/informationmath/SideStops.h"
#include "displays/visionmath/bars/BarPen.h"

#include <array>

namespace skyvane {

/// How wide words are.
class IWordMeasure {
public:
    virtual ~IWordMeasure() = default;
    /// In pixels, for digits of that height.
    virtual double measure(const ShortText& text, double height) = 0;
};

/// The colours of a side view, ARGB.
namespace SideColor {
constexpr uint32_t skyTop = 0xff193280, skyBottom = 0xff50506e;
constexpr uint32_t course = 0xffff40ff, succeeding = 0xffffffff, low = 0xffffc31f, inGround = 0xffff2a2a,
                   casing = 0xc0100818;
constexpr uint32_t ground = 0xfff0e6d2, unknown = 0x38ffffff;
constexpr uint32_t ink = 0xfff4f7fb, dim = 0xffb9c3cf, grid = 0x26ffffff, strip = 0xa0060a10, box = 0xd0060a10;
constexpr uint32_t doubtful = 0xffffe11f, failed = 0xffff4a42, vector = 0xff40ff60, selected = 0xffffe11f;
} // namespace SideColor

/// What a side view shows, and where. Pixels of the screen; whatever it points to outlives its use.
struct SideScene {
    SideAxes axes;
    const RouteProfile* profile = nullptr;
    const std::vector<SideStop>* stops = nullptr;
    const std::vector<SideAirspace>* airspaces = nullptr;
    int selected = -1; ///< Of the stops.
    bool metric = false;
    bool isAhead = false;     ///< A part of the profile is shown, enlarged.
    double textHeight = 12.0; ///< Of digits.
    double scaleWidth = 0.0;  ///< Of the altitudes' strip at the left edge.
    double scaleHeight = 0.0; ///< Of the distances' strip at the lower edge.
    ShapeRect buttons;        ///< Empty while there are none.

    // The flight.
    SideReadings readings;
    std::optional<RoutePlace> place;
    // Where the aircraft is, roughly, its altitude, and what else there is to say; empty without one.
    ShapeRect aircraftBox, altitudeBox, notesBox;
};

/// Room for everything that has no place of its own: between the strips.
inline ShapeRect freeRectOf(const SideScene& scene) {
    ShapeRect free = scene.axes.panel;
    free.UpperLeftCorner.X += scene.scaleWidth;
    free.LowerRightCorner.Y -= scene.scaleHeight;
    return free;
}

/// The distance along the course from the aircraft to a point of the profile, in metres; from the beginning of the
/// course while nobody knows where the aircraft is.
inline double metresAhead(const SideScene& scene, double index) {
    return (index - (scene.place ? scene.place->index : 0.0)) * scene.axes.stepMetres;
}

} // namespace skyvane
