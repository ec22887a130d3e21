#pragma once

#include "core/geometry/EngineMath.h"

#include <array>
#include <cstdint>
#include <vector>

namespace skyvane {

class AirportElement;

/// The plan of an airport's runways, for maps and small pictures, in the local frame of its reference point: x metres
/// east, z metres north. Made once with the element; holds no reference to it.
class AirportSketch {
public:
    using Point = irr::core::vector2d<double>; ///< X east, Y north.

    struct Strip {
        std::array<Point, 2> ends;    ///< The thresholds, known or laid out.
        std::array<Point, 4> corners; ///< Round the strip: first end left and right, second end right and left.
        uint32_t surface;             ///< Runway::Surface
        bool isPlaceKnown;            ///< Both thresholds are surveyed.
    };

    /// Runways of unknown width are drawn 30 m wide.
    explicit AirportSketch(const AirportElement& airport);

    const std::vector<Strip>& getStrips() const { return strips_; }
    /// Half the sides of the smallest rectangle round the reference point that holds all strips, at least 100 m.
    const Point& getHalfExtent() const { return halfExtent_; }
    /// Pixels per metre so that all strips, around the picture's middle, fit into it with a margin: the point (x, z)
    /// stands at middle + (factor * x, -factor * z).
    double getPositionFactor(const irr::core::dimension2d<uint32_t>& picture) const;

private:
    std::vector<Strip> strips_;
    Point halfExtent_;
};

} // namespace skyvane
