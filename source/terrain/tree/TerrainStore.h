#pragma once

#include "chart/store/LRUCache.h"
#include "terrain/tree/ITerrainData.h"
#include "terrain/tree/MMTerrainNode.h"

#include <memory>
#include <string>

namespace skyvane {

/// The terrain of the world at any level of detail: the tree of cells, the folder of their tiles, and the few tiles
/// that are in memory.
///
///     TerrainStore terrain("/home/pilot/Terrain/", TerrainCacheSize);
///     terrain.getRoot()->getHeight({1.4092, 42.3386}, 200.0, true, false);   // metres; infinity without any tile
///
/// Belongs to one thread at a time. For many heights near each other ask a TerrainSampler.
class TerrainStore {
public:
    /// Of a wide and a near mesh and the way between them; 2.9 MB each.
    static constexpr int DefaultCacheSize = 22;

    /// The folder's name ends in a slash.
    TerrainStore(std::string folder, int cacheSize);
    TerrainStore(const TerrainStore&) = delete;
    TerrainStore& operator=(const TerrainStore&) = delete;

    /// The first call makes the tree, some 10 ms of work that a start needn't wait for.
    MMTerrainNode* getRoot();
    /// By id, 0 to TerrainNodeCount - 1.
    MMTerrainNode* getNode(int id) { return getRoot() + id; }
    const std::string& getFolder() const { return folder_; }

    /// The node's tile through the cache; it holds until the next request. Null when even the one last asked for finds
    /// no room.
    ITerrainData* requestCachedTerrainData(ITerrainNode* node);
    /// Its heights, null when there is no tile. A node that isn't loadable takes no place in the cache.
    const int16_t* requestHeights(MMTerrainNode* node);

    /// Frees all tiles and lets the cache hold a tenth fewer from now on, down to 0.45 of what it held at first.
    void freeMemory();
    void clearCache() { cache_.clear(); }
    size_t getCacheLimit() const { return cache_.getLimit(); }
    unsigned long getMissCount() const { return cache_.getMissCount(); }

private:
    std::string folder_;
    size_t leastTiles_;
    std::unique_ptr<MMTerrainNode[]> nodes_;
    LRUCache<int, std::unique_ptr<ITerrainData>> cache_;
};

} // namespace skyvane
