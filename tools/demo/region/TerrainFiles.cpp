#include "demo/region/TerrainFiles.h"

#include "demo/region/Landscape.h"
#include "terrain/files/BackgroundList.h"
#include "terrain/files/TerrainIndexFile.h"
#include "terrain/files/TerrainTile.h"
#include "terrain/tree/TerrainStore.h"

#include <algorithm>
#include <cmath>
#include <list>

namespace skyvane::demo {

std::vector<int16_t> sampleTile(const Landscape& landscape) {
    std::vector<int16_t> heights;
    heights.reserve(TileSamples);
    for (int row = 0; row < TileSide; ++row)
        for (int column = 0; column < TileSide; ++column) {
            const Spot spot{RegionPlane::Width * column / TileSteps,
                            RegionPlane::Height * (TileSteps - row) / TileSteps};
            const double metres = landscape.height(spot);
            heights.push_back(metres > 0.0 ? static_cast<int16_t>(std::max(std::lround(metres), 1l)) : int16_t{0});
        }
    return heights;
}

bool writeTerrain(const Landscape& landscape, const std::string& folder) {
    constexpr double west = RegionPlane::West + 360.0, north = RegionPlane::South + RegionPlane::Degrees;
    TerrainStore tree(folder, 1);
    const std::vector<int16_t> sea(TileSamples, int16_t{0});
    std::list<int> ids;
    for (const double row : {1.0, 0.0, -1.0})
        for (const double column : {-1.0, 0.0, 1.0}) {
            const ChartPosition corner(west + column, north + row);
            const int leaf =
                findFittingNode(tree.getRoot(), corner, {corner.longitude + 1.0, corner.latitude - 1.0})->getId();
            const bool isLand = row == 0.0 && column == 0.0;
            if (!saveTile(getTilePath(folder, leaf), (isLand ? sampleTile(landscape) : sea).data()))
                return false;
            ids.push_back(leaf);
        }
    return writeTIFile(folder + "Skyvane_Islands.ti", "Skyvane Islands (fictional)", ids, "N/A") &&
           setFolderDirty(folder, true);
}

} // namespace skyvane::demo
