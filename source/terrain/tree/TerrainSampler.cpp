#include "terrain/tree/TerrainSampler.h"

#include "chart/geodesy/Angles.h"
#include "terrain/tree/TileSampling.h"

#include <cmath>
#include <limits>

namespace skyvane {
namespace {

/// Of a tile's density to the one that is wanted: eight times the distance between samples.
constexpr double CoarsestRatio = 64.0;

} // namespace

int16_t TerrainSampler::getRaw(const ChartPosition& position, double density, bool interpolate) {
    const ChartPosition place(Angle0to360(position.longitude), Latitudinize(position.latitude));
    if (known_) {
        const MMTerrainNode& cell = *last_.chosen;
        // Strictly inside: on an edge another cell may come first.
        const bool inside = place.longitude > cell.nw_.longitude && place.longitude < cell.se_.longitude &&
                            place.latitude < cell.nw_.latitude && place.latitude > cell.se_.latitude;
        if (inside && density > cell.leastDensity_) {
            if (sea_)
                return 0;
            if (density <= cell.mostDensity_) {
                if (!last_.answering)
                    return MMTerrainNode::MissingTile;
                const MMTerrainNode& tile = *last_.answering;
                const int16_t height = sampleTile(last_.heights, tile.nw_, tile.se_, place, interpolate);
                if (height != NoHeight)
                    return height;
            }
        }
    }
    return search(place, density, interpolate);
}

int16_t TerrainSampler::search(const ChartPosition& place, double density, bool interpolate) {
    known_ = false;
    if (!std::isfinite(place.longitude) || !std::isfinite(place.latitude))
        return MMTerrainNode::MissingTile;
    last_ = MMTerrainNode::Descent();
    const int16_t height = store_.getRoot()->hlp_getHeight(place, density, interpolate, true, last_);
    sea_ = last_.chosen->ocean_ && !last_.answering;
    known_ = !last_.hole;
    mostKnownDensity_ = sea_ ? std::numeric_limits<double>::infinity() : CoarsestRatio * getAnsweringDensity();
    return height;
}

} // namespace skyvane
