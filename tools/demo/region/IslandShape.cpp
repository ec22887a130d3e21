#include "demo/region/IslandShape.h"

#include <algorithm>

namespace skyvane::demo {

namespace {

constexpr double kilometre = 1000.0;

struct Blob {
    Spot centre; ///< Kilometres, as all of the tables here.
    double along;
    double across;
    double turnDegrees; ///< Of the long axis from north to east.
};

// The main island: its body, the southern peninsula, the northern cape, and three islets.
constexpr Blob land[] = {{{39.0, 57.0}, 37.0, 21.0, 14.0}, {{54.0, 29.0}, 17.0, 11.0, -28.0},
                         {{52.0, 90.0}, 12.0, 7.0, 30.0},  {{70.0, 66.0}, 4.5, 3.0, 10.0},
                         {{14.0, 88.0}, 4.0, 3.0, -40.0},  {{69.0, 12.0}, 3.2, 2.4, 60.0}};
// Bays that are cut out again.
constexpr Blob bays[] = {{{15.0, 45.0}, 8.0, 11.0, 10.0}, {{66.0, 48.0}, 8.0, 12.0, -20.0}};

struct Range {
    Spot from;
    Spot to;
    double height; ///< Of the highest range's.
    double halfWidth;
};

// The main range from south-west to north-east, and two side ranges that leave passes between them.
constexpr Range ranges[] = {{{29.0, 33.0}, {34.0, 45.0}, 0.75, 8.0}, {{34.0, 45.0}, {37.0, 59.0}, 1.0, 9.0},
                            {{37.0, 59.0}, {44.0, 72.0}, 0.9, 8.5},  {{44.0, 72.0}, {49.0, 86.0}, 0.6, 6.5},
                            {{42.0, 54.0}, {54.0, 44.0}, 0.55, 6.0}, {{54.0, 44.0}, {55.0, 30.0}, 0.5, 5.5}};

double depthInside(const Blob& blob, Spot spot) {
    const double turn = blob.turnDegrees / DegreesPerRadian;
    const Spot along{std::sin(turn), std::cos(turn)};
    const Spot offset = spot * (1.0 / kilometre) - blob.centre;
    const Spot scaled{dot(offset, along) / blob.along, dot(offset, rightOf(along)) / blob.across};
    return (1.0 - length(scaled)) * std::min(blob.along, blob.across);
}

double smoothMaximum(double a, double b, double softness) {
    const double t = std::clamp(0.5 + 0.5 * (a - b) / softness, 0.0, 1.0);
    return b + (a - b) * t + softness * t * (1.0 - t);
}

double rangeProfile(const Range& range, Spot spot) {
    const Spot place = spot * (1.0 / kilometre);
    const Spot line = range.to - range.from;
    const double t = std::clamp(dot(place - range.from, line) / dot(line, line), 0.0, 1.0);
    const double away = distance(place, range.from + line * t) / range.halfWidth;
    return range.height * std::exp(-0.5 * away * away);
}

} // namespace

IslandShape::IslandShape(uint64_t seed)
    : coastNoise_(seed + 11, 17.0 * kilometre, 9), upliftNoise_(seed + 23, 9.0 * kilometre, 4) {}

double IslandShape::coast(Spot spot) const {
    constexpr double softnessKilometres = 5.0;
    constexpr double noiseKilometres = 4.5;
    constexpr double seaAtEdgeKilometres = 2.5;
    double depth = -50.0;
    for (const Blob& blob : land)
        depth = smoothMaximum(depth, depthInside(blob, spot), softnessKilometres);
    for (const Blob& bay : bays)
        depth = -smoothMaximum(-depth, depthInside(bay, spot), softnessKilometres);
    depth += noiseKilometres * coastNoise_(spot);
    const double edge = std::min({spot.x, spot.y, RegionPlane::Width - spot.x, RegionPlane::Height - spot.y});
    return std::min(depth * kilometre, edge - seaAtEdgeKilometres * kilometre);
}

double IslandShape::uplift(Spot spot) const {
    double profile = 0.0;
    for (const Range& range : ranges)
        profile = std::max(profile, rangeProfile(range, spot));
    constexpr double plains = 0.035;
    return plains + profile * (0.85 + 0.45 * upliftNoise_(spot));
}

} // namespace skyvane::demo
