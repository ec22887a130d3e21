#include "terrain/paging/ProfileHeights.h"

#include "chart/geodesy/Angles.h"
#include "terrain/paging/TerrainRequests.h"
#include "terrain/tree/TerrainSampler.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

/// Looks for ridges around each point, and how much finer their samples lie along the way. Each look has its own sample
/// then, and a long profile needs but four times the tiles.
constexpr int LooksPerPoint = 8;
constexpr double LooksFiner = 4.0;

/// A share of the way from one position to another.
ChartPosition between(const ChartPosition& from, const ChartPosition& to, double share) {
    return {from.longitude + Angle180(to.longitude - from.longitude) * share,
            from.latitude + (to.latitude - from.latitude) * share};
}

void fillAtPoints(TerrainStore& store, PointCall& call) {
    const double density = 1.0 / call.samplingInterval;
    TerrainSampler sampler(store);
    for (size_t i = 0; i < call.positions.size(); ++i) {
        const TerrainSampler::Height sample = sampler.sample(call.positions[i], density);
        call.heights[i] = std::isfinite(sample.metres) ? sample.metres : 0.0f;
        call.known[i] = sampler.isBelievable(sample, density);
    }
}

/// What is unknown stays as it is.
void raiseToRidges(TerrainStore& store, PointCall& call) {
    const double density = LooksFiner * LooksFiner / call.samplingInterval;
    TerrainSampler sampler(store);
    for (size_t i = 0; i + 1 < call.positions.size(); ++i)
        for (int look = 0; look < LooksPerPoint; ++look) {
            const double share = (look + 0.5) / LooksPerPoint;
            const size_t nearest = share < 0.5 ? i : i + 1;
            const TerrainSampler::Height sample =
                sampler.sample(between(call.positions[i], call.positions[i + 1], share), density);
            if (sample.isKnown && call.known[nearest])
                call.heights[nearest] = std::max(call.heights[nearest], sample.metres);
        }
}

} // namespace

void fillProfileHeights(TerrainStore& store, PointCall& call) {
    // One after the other: a sampler's tile holds only as long as nobody else asks the store.
    fillAtPoints(store, call);
    raiseToRidges(store, call);
    for (const float height : call.heights) {
        call.minimum = std::min(call.minimum, height);
        call.maximum = std::max(call.maximum, height);
    }
}

} // namespace skyvane
