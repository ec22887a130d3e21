#pragma once

#include "displays/visionmath/Lens.h"

#include <vector>

namespace skyvane {

/// The horizon on a panel: where directions level with the eye fall. A straight line, wherever the eye looks.
struct HorizonLine {
    using Point = Lens::Point;

    /// Unit vector across the line towards the sky, y down.
    Point skyward{0.0, -1.0};
    /// Pixels from the line to the middle of the panel, positive when that shows sky.
    double skyPixels = 0.0;

    /// Pixels on the sky's side of the line, negative on the ground's.
    double distanceOf(const Point& point, const Lens& lens) const {
        return (point - lens.getCentre()).dotProduct(skyward) + skyPixels;
    }
    /// The point of the line nearest to the middle of the panel.
    Point getFoot(const Lens& lens) const { return lens.getCentre() - skyward * skyPixels; }
};

/// Looking straight up or down there is no line on the panel: it lies far off, and level.
HorizonLine calcHorizon(const ViewPose& pose, const Lens& lens);

/// The same, moved so that straight across it each side shows at least this many pixels up to the edge of the panel.
/// True when it had to be moved: the picture below doesn't show that much then.
bool keepInView(HorizonLine& line, const Lens& lens, double sliverPixels);

/// The part of the panel on one side of the line, as a convex outline of at most five points; empty when there is none.
std::vector<Lens::Point> sideOf(const HorizonLine& line, const Lens& lens, bool sky);

} // namespace skyvane
