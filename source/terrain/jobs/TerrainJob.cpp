#include "terrain/jobs/TerrainJob.h"

#include "core/files/SafeFile.h"
#include "core/log/Logger.h"
#include "terrain/files/TerrainIndexFile.h"
#include "terrain/jobs/ParallelLoop.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <utility>

namespace skyvane {
namespace {

/// The node whose tile a file is; -1 for none's.
int parseTileName(const std::string& name) {
    int id = -1;
    const char* end = name.data() + name.size();
    const auto number = std::from_chars(name.data(), end, id);
    const bool good = number.ec == std::errc() && std::string(number.ptr, end) == TerrainTileEnding;
    return good && id >= 0 && id < TerrainNodeCount ? id : -1;
}

} // namespace

TerrainJob::TerrainJob(MMTerrainNode* root, std::string folder, ITerrainProgress& progress, const ThreadBudget& budget)
    : root_(root), folder_(std::move(folder)), progress_(progress), budget_(budget), hasData_(TerrainNodeCount),
      pool_(static_cast<unsigned>(std::max({budget.maxThreadCount, budget.maxSyncThreadCount, 0}))) {}

void TerrainJob::findLeaves() {
    std::fill(hasData_.begin(), hasData_.end(), 0);
    std::error_code error;
    for (std::filesystem::directory_iterator it(folder_, error), end; !error && it != end; it.increment(error)) {
        const int id = parseTileName(it->path().filename().string());
        if (id >= 0 && root_[id].isLeaf())
            hasData_[static_cast<size_t>(id)] = 1;
    }
}

bool TerrainJob::run() {
    progress_.setState("Calculating terrain levels...");
    removeUnfinishedFiles(folder_, TerrainTileEnding);
    removeUnfinishedFiles(folder_, TerrainIndexEnding);
    root_->resetLoadable();
    if (!recalculateMipMapLevels() || !synchronizeWithNeighborsAndSave())
        return false;
    progress_.setState("Finalizing terrain data...");
    return synchronize0Longitude(0.0, 1.0);
}

bool TerrainJob::forEachNode(const std::vector<MMTerrainNode*>& nodes, int threads, const NodeWork& work,
                             const std::function<void(size_t)>& show) {
    ParallelLoop loop;
    loop.count = nodes.size();
    loop.threads = threads;
    loop.work = [&](size_t index) { return work(*nodes[index]); };
    loop.poll = [&](size_t done) {
        show(done);
        return !progress_.isCancelled();
    };
    const bool complete = runParallelLoop(pool_, loop);
    if (!complete)
        logText(progress_.isCancelled() ? "Cancelled\n" : "Terrain data could not be written.\n");
    return complete;
}

TerrainJob::Heights TerrainJob::loadMMDataWithCollector(const MMTerrainNode& node) {
    Heights heights = collector_.take();
    if (loadTile(getTilePath(folder_, node.getId()), heights.get()) != TileLoad::Loaded)
        heights.reset();
    return heights;
}

bool TerrainJob::save(const MMTerrainNode& node, const int16_t* heights) {
    return saveTile(getTilePath(folder_, node.getId()), heights);
}

bool MMTerrainNode::OnUpdate(const char* folder, ITerrainProgress* progress, unsigned long systemMemoryBytes,
                             unsigned cpuCoreCount) {
    const ThreadBudget budget = calcThreadBudget(systemMemoryBytes, cpuCoreCount);
    logText("cpuMaxThreads: " + std::to_string(budget.cpuMaxThreads) +
            " maxSyncThreadCount: " + std::to_string(budget.maxSyncThreadCount) +
            " maxThreadCount: " + std::to_string(budget.maxThreadCount) + "\n");
    logText("systemMemory: " + std::to_string(systemMemoryBytes) + " cpuCoreCount: " + std::to_string(cpuCoreCount) +
            "\n");
    return TerrainJob(this, folder, *progress, budget).run();
}

} // namespace skyvane
