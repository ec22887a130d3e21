#pragma once

namespace skyvane {

// The fixed shape of the terrain tree. The root reaches from longitude 0 to 400 and from latitude 100 to -100, further
// than the world, so that each level cuts it into whole degrees; leaves are one degree wide and high.

struct TerrainSplit {
    int longitudes;
    int latitudes;
};

constexpr int TerrainLevels = 7;
/// How the cells of a level are cut into those of the next.
constexpr TerrainSplit TerrainSplits[TerrainLevels - 1] = {{5, 5}, {5, 5}, {2, 2}, {2, 2}, {2, 2}, {2, 1}};

constexpr double TerrainTreeWest = 0.0;
constexpr double TerrainTreeNorth = 100.0;
constexpr double TerrainTreeEast = 400.0;
constexpr double TerrainTreeSouth = -100.0;

/// Nodes at and below a node of a level.
constexpr int countTerrainNodes(int level) {
    return level == TerrainLevels - 1
               ? 1
               : 1 + TerrainSplits[level].longitudes * TerrainSplits[level].latitudes * countTerrainNodes(level + 1);
}
constexpr int TerrainNodeCount = countTerrainNodes(0);
static_assert(TerrainNodeCount == 133151, "ids of nodes are names of files");

} // namespace skyvane
