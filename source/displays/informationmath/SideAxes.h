#pragma once

#include "displays/shapes/Strokes.h"

#include <algorithm>

namespace skyvane {

/// Where a place of a profile and an altitude lie on a panel, in pixels of the screen. Across, the points of the
/// profile; upwards, metres from the lowest ground to the top of the range.
struct SideAxes {
    ShapeRect panel;
    size_t points = 0;       ///< Of the whole profile.
    double first = 0.0;      ///< The point at the left edge.
    double shown = 0.0;      ///< Points across the panel.
    double stepMetres = 0.0; ///< From point to point.
    double lowest = 0.0, top = 1.0;

    double xOf(double index) const {
        return panel.UpperLeftCorner.X + (index - first) * panel.getWidth() / std::max(shown, 1.0);
    }
    double yOf(double altitude) const {
        return panel.UpperLeftCorner.Y + panel.getHeight() -
               (altitude - lowest) * panel.getHeight() / std::max(top - lowest, 1e-3);
    }
    ShapePoint toScreen(double index, double altitude) const { return {xOf(index), yOf(altitude)}; }
    double indexAt(double x) const {
        return first + (x - panel.UpperLeftCorner.X) * shown / std::max(panel.getWidth(), 1.0);
    }
    double altitudeAt(double y) const {
        return lowest + (panel.LowerRightCorner.Y - y) * (top - lowest) / std::max(panel.getHeight(), 1.0);
    }
    double getPixelsPerMetre() const { return panel.getWidth() / std::max(shown * stepMetres, 1e-3); }
    /// The points that can be seen, at the edges one more: [begin, end).
    size_t begin() const { return static_cast<size_t>(std::clamp(first - 1.0, 0.0, static_cast<double>(points))); }
    size_t end() const {
        return static_cast<size_t>(std::clamp(first + shown + 2.0, 0.0, static_cast<double>(points)));
    }
};

/// The part of a profile that a look ahead shows: a fixed length of the course that begins behind the aircraft and
/// moves on in steps, so that the picture stands still in between. The whole profile when that is shorter.
struct SideWindow {
    double first, shown; ///< Points.
};
SideWindow lookAhead(size_t points, double stepMetres, double ownIndex, double lengthMetres);

} // namespace skyvane
