#pragma once

#include "displays/visionmath/ViewPose.h"

#include <algorithm>
#include <optional>

namespace skyvane {

/// How a view falls on a panel, in pixels of the panel: x to the right, y down.
///
/// The shorter side of the panel shows 45 degrees, so that all panels show the world in about the same size.
struct Lens {
    using Point = irr::core::vector2d<double>;
    static constexpr double shortSideDegrees = 45.0;

    Lens(int panelWidth, int panelHeight)
        : width(std::max(panelWidth, 1)), height(std::max(panelHeight, 1)),
          focalPixels(std::min(width, height) / 2.0 / 0.41421356237309503) {} // the tangent of a quarter of 90 degrees

    Point getCentre() const { return {width / 2.0, height / 2.0}; }
    /// Nothing for what lies behind the eye, or so far aside that its pixel means nothing.
    std::optional<Point> project(const ViewPose& pose, const ViewPose::Vector& direction) const {
        const ViewPose::Vector eye = pose.toEye(direction);
        constexpr double farthest = 20.0;
        if (!(eye.Z > 0.0) || std::abs(eye.X) > farthest * eye.Z || std::abs(eye.Y) > farthest * eye.Z)
            return std::nullopt;
        return Point(width / 2.0 + focalPixels * eye.X / eye.Z, height / 2.0 - focalPixels * eye.Y / eye.Z);
    }

    int width;
    int height;
    double focalPixels; ///< Pixels of a direction's tangent.
};

} // namespace skyvane
