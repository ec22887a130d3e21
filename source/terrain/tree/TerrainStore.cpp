#include "terrain/tree/TerrainStore.h"

#include "terrain/tree/MMData.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr double LeastCacheShare = 0.45;
constexpr double ShareKeptUnderPressure = 0.9;

} // namespace

TerrainStore::TerrainStore(std::string folder, int cacheSize)
    : folder_(std::move(folder)), leastTiles_(static_cast<size_t>(std::max(cacheSize, 1) * LeastCacheShare)),
      cache_(static_cast<size_t>(std::max(cacheSize, 1))) {}

MMTerrainNode* TerrainStore::getRoot() {
    if (!nodes_) {
        nodes_.reset(new MMTerrainNode[TerrainNodeCount]);
        int nextId = 0;
        nodes_[0].init(this, nullptr, nextId);
    }
    return nodes_.get();
}

ITerrainData* TerrainStore::requestCachedTerrainData(ITerrainNode* node) {
    if (auto* data = cache_.find(node->getId()))
        return data->get();
    std::unique_ptr<ITerrainData> loaded = node->loadCorrespondingData(folder_.c_str());
    if (const int16_t* heights = static_cast<const MMData*>(loaded.get())->heights.get())
        static_cast<MMTerrainNode*>(node)->noteOcean(heights);
    auto* data = cache_.insert(node->getId(), std::move(loaded));
    return data ? data->get() : nullptr;
}

const int16_t* TerrainStore::requestHeights(MMTerrainNode* node) {
    if (!node->isLoadable())
        return nullptr;
    const auto* data = static_cast<const MMData*>(requestCachedTerrainData(node));
    return data ? data->heights.get() : nullptr;
}

void TerrainStore::freeMemory() {
    cache_.clear();
    const double fewer = static_cast<double>(cache_.getLimit()) * ShareKeptUnderPressure;
    cache_.setLimit(std::max({static_cast<size_t>(fewer), leastTiles_, size_t{1}}));
}

} // namespace skyvane
