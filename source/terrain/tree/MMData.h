#pragma once

#include "terrain/files/TerrainTile.h"
#include "terrain/tree/ITerrainData.h"

#include <memory>

namespace skyvane {

/// The TileSamples heights of one tile; null when nothing could be loaded.
class MMData : public ITerrainData {
public:
    MMData() = default;
    explicit MMData(std::unique_ptr<int16_t[]> tile) : heights(std::move(tile)) {}

    std::unique_ptr<int16_t[]> heights;
};

} // namespace skyvane
