#pragma once

#include "sensors/TemporaryFolder.h"
#include "terrain/files/TerrainTile.h"
#include "terrain/tree/TerrainStore.h"

#include <gtest/gtest.h>
#include <map>
#include <vector>

namespace skyvane {

using Tile = std::vector<int16_t>;

template <class HeightOf>
Tile makeTile(HeightOf heightOf) {
    Tile tile(TileSamples);
    for (int row = 0; row < TileSide; ++row)
        for (int column = 0; column < TileSide; ++column)
            tile[static_cast<size_t>(row * TileSide + column)] = static_cast<int16_t>(heightOf(row, column));
    return tile;
}

inline Tile flatTile(int height) {
    return Tile(TileSamples, static_cast<int16_t>(height));
}

/// A terrain folder of its own, and the tree over it.
class TerrainFixture : public ::testing::Test {
protected:
    /// The cell of that width whose north-west corner this is; it is 4 x 2 degrees and so on, or 1 x 1.
    MMTerrainNode* cell(double west, double north, double width) {
        const double height = width <= 2.0 ? 1.0 : width / 2.0;
        auto* node = findFittingNode(store_.getRoot(), {west, north}, {west + width, north - height});
        return static_cast<MMTerrainNode*>(node);
    }
    std::string path(const ITerrainNode* node) const { return getTilePath(store_.getFolder(), node->getId()); }
    void save(const ITerrainNode* node, const Tile& tile) const { ASSERT_TRUE(saveTile(path(node), tile.data())); }
    /// Empty when there is no tile that can be read.
    Tile load(const ITerrainNode* node) const {
        Tile tile(TileSamples);
        if (loadTile(path(node), tile.data()) != TileLoad::Loaded)
            tile.clear();
        return tile;
    }
    float heightAt(double longitude, double latitude, double density = 1e9, bool interpolate = true) {
        return store_.getRoot()->getHeight({longitude, latitude}, density, interpolate, false);
    }

    TemporaryFolder folder_;
    TerrainStore store_{folder_.path() + "/", TerrainStore::DefaultCacheSize};
};

} // namespace skyvane
