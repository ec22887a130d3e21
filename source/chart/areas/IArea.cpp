#include "chart/areas/IArea.h"

#include "chart/geodesy/Angles.h"

#include <cmath>
#include <cstdio>

namespace skyvane {
namespace {

/// Degrees by which a position may lie outside and still be inside.
constexpr double InsideTolerance = 0.0001;
/// Degrees that an overlap has at least.
constexpr double OverlapTolerance = 1e-8;

bool liesWithin(double low, double value, double high) {
    return low <= value && value <= high;
}

/// Two spans overlap: an end of the second lies in the first, or the second holds the first.
bool spansOverlap(double low, double high, double otherLow, double otherHigh) {
    return liesWithin(low, otherLow, high) || liesWithin(low, otherHigh, high) ||
           (otherLow <= low && high <= otherHigh);
}

} // namespace

bool IArea::isInside(const ChartPosition& position) const {
    const double offset = transformLongitude(position.longitude, nw_.longitude);
    const double width = transformLongitude(se_.longitude, nw_.longitude);
    // Of an area wider than 180 degrees the transformed width says nothing.
    const bool longitudeFits = liesWithin(-InsideTolerance, offset, width + InsideTolerance) ||
                               (position.longitude >= nw_.longitude && position.longitude < se_.longitude);
    return longitudeFits && position.latitude <= nw_.latitude + InsideTolerance &&
           position.latitude >= se_.latitude - InsideTolerance;
}

bool IArea::overlapsLongitudes(double west, double east) const {
    const double width = Angle360(east - west);
    if (width > 180.0) {
        // The ends of so wide a rectangle may lie more than half a turn away, where the transformed ones turn over.
        const double offset = Angle0to360(nw_.longitude - west);
        return offset < width - OverlapTolerance || offset + (se_.longitude - nw_.longitude) > 360.0 + OverlapTolerance;
    }
    return spansOverlap(OverlapTolerance, transformLongitude(se_.longitude, nw_.longitude) - OverlapTolerance,
                        transformLongitude(west, nw_.longitude) + OverlapTolerance,
                        transformLongitude(east, nw_.longitude) - OverlapTolerance);
}

bool IArea::overlapsLatitudes(double north, double south) const {
    return spansOverlap(se_.latitude + OverlapTolerance, nw_.latitude - OverlapTolerance, south + OverlapTolerance,
                        north - OverlapTolerance);
}

bool IArea::Overlap(const ChartPosition& nw, const ChartPosition& se) const {
    return overlapsLatitudes(nw.latitude, se.latitude) && overlapsLongitudes(nw.longitude, se.longitude);
}

double IArea::getSquareDegrees() const {
    return std::fabs((se_.longitude - nw_.longitude) * (nw_.latitude - se_.latitude));
}

void IArea::Print() const {
    std::printf("%s of %i: %g %g to %g %g\n", isLeaf() ? "Leaf" : "Node", parentIndex_, nw_.longitude, nw_.latitude,
                se_.longitude, se_.latitude);
}

} // namespace skyvane
