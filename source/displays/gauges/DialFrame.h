#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

/// Part of a panel's edge that the face of a round dial covers; the bezel covers the whole square.
constexpr double dialFaceFraction = 0.839344262295082;

/// Where the layers of a round dial lie, in pixels local to the panel's square.
struct DialFrame {
    explicit DialFrame(int edgePixels)
        : edge(edgePixels), centre(edgePixels / 2, edgePixels / 2),
          faceSize(static_cast<int>(edgePixels * dialFaceFraction + 0.5)) {}

    int edge;
    irr::core::vector2d<int> centre;
    int faceSize;
};

/// A box inside a square: its middle and its size as fractions of the square's edge.
irr::core::rect<int> boxInSquare(const irr::core::rect<int>& square, double centreX, double centreY, double width,
                                 double height);

} // namespace skyvane
