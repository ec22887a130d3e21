#pragma once

#include "terrain/files/TerrainTile.h"
#include "terrain/tree/TerrainStore.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

/// The heights of MMTerrainNode::getHeight on the root, to the bit, but quicker: as long as places and densities stay
/// within the cell that the last one ended in, nothing is searched.
///
/// Made for one mesh or image; nobody else uses the store meanwhile.
class TerrainSampler {
public:
    explicit TerrainSampler(TerrainStore& store) : store_(store) {}

    /// A height for a mesh: between the samples, infinite where no tile is.
    struct Height {
        float metres;
        /// False also where a tile has a hole, which counts as 0, and where a tile stands in whose samples lie so much
        /// farther apart than wanted that a single one would become a landscape that isn't there.
        bool isKnown;
    };
    Height sample(const ChartPosition& position, double density) {
        const int16_t raw = getRaw(position, density, true);
        const bool exists = raw != NoHeight && raw != MMTerrainNode::MissingTile;
        return {toHeight(raw, false), exists && density <= mostKnownDensity_};
    }
    /// Samples per square kilometre of the tile that the last answer came from; 0 without one, and for the root, whose
    /// own density says nothing.
    double getAnsweringDensity() const {
        const double density = last_.answering ? last_.answering->getDensity() : 0.0;
        return std::isfinite(density) ? density : 0.0;
    }
    /// Whether a picture of that density may show the last answer. A coarse tile stands in for a missing fine one as
    /// long as its samples lie at most twelve of the picture's apart: beyond, a single one would become a landscape
    /// that isn't there.
    bool isBelievable(const Height& sample, double density) const {
        constexpr double leafDensity = 100.0, coarsestRatio = 12.0; // samples per square kilometre, about
        const double coarsest = std::min(density, leafDensity) / (coarsestRatio * coarsestRatio);
        return sample.isKnown && (sample.metres == 0.0f || getAnsweringDensity() >= coarsest);
    }
    float getHeight(const ChartPosition& position, double density, bool interpolate, bool zeroIfMissing) {
        return toHeight(getRaw(position, density, interpolate), zeroIfMissing);
    }

private:
    int16_t getRaw(const ChartPosition& position, double density, bool interpolate);
    int16_t search(const ChartPosition& place, double density, bool interpolate);

    TerrainStore& store_;
    double mostKnownDensity_ = 0.0; ///< Wanted densities up to here are near enough to the last answer's own.
    bool known_ = false;            ///< Whether `last_` answers for all of its chosen cell.
    bool sea_ = false;
    MMTerrainNode::Descent last_;
};

} // namespace skyvane
