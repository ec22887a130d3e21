#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "chart/geodesy/EarthConstants.h"

#include <cmath>

namespace skyvane::demo {

/// A place on the region's plane: metres east and north of its south-west corner.
struct Spot {
    double x = 0.0;
    double y = 0.0;
};

inline Spot operator+(Spot a, Spot b) {
    return {a.x + b.x, a.y + b.y};
}
inline Spot operator-(Spot a, Spot b) {
    return {a.x - b.x, a.y - b.y};
}
inline Spot operator*(Spot a, double factor) {
    return {a.x * factor, a.y * factor};
}
inline double dot(Spot a, Spot b) {
    return a.x * b.x + a.y * b.y;
}
inline double length(Spot a) {
    return std::sqrt(dot(a, a));
}
inline double distance(Spot a, Spot b) {
    return length(a - b);
}
inline Spot blend(Spot a, Spot b, double t) {
    return a + (b - a) * t;
}
/// Turned by a quarter to the right.
inline Spot rightOf(Spot a) {
    return {a.y, -a.x};
}

/// 0 up to `from`, 1 from `to` on, smooth in between.
inline double smoothStep(double from, double to, double value) {
    const double t = std::fmin(1.0, std::fmax(0.0, (value - from) / (to - from)));
    return t * t * (3.0 - 2.0 * t);
}

/// The plane of the first tile of the islands: one degree, open ocean in reality. Its longitude scale is that of the
/// middle, so lengths are exact to 1 %.
class RegionPlane {
public:
    static constexpr double West = -29.0;
    static constexpr double South = 42.0;
    static constexpr double Degrees = 1.0;
    static constexpr double Height = Degrees * MetresPerDegree;
    static constexpr double EastScale = 0.7372773368101241; ///< cos 42.5 degrees
    static constexpr double Width = Height * EastScale;

    static ChartPosition toPosition(Spot spot) {
        return {West + spot.x / (MetresPerDegree * EastScale), South + spot.y / MetresPerDegree};
    }
    /// Any longitude range.
    static Spot toSpot(const ChartPosition& position) {
        return {std::remainder(position.longitude - West, 360.0) * MetresPerDegree * EastScale,
                (position.latitude - South) * MetresPerDegree};
    }
};

} // namespace skyvane::demo
