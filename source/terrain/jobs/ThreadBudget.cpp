#include "terrain/jobs/ThreadBudget.h"

#include "terrain/files/TerrainTile.h"
#include "terrain/tree/TerrainTreeShape.h"

#include <algorithm>
#include <cstdint>

namespace skyvane {
namespace {

constexpr int BusyThreads = 8;
/// What the rest of the program and the system keep.
constexpr int64_t ReservedBytes = 325000000;

/// Tiles that a walk down the tree keeps when it holds the siblings of its way.
constexpr int64_t countSiblings() {
    int64_t siblings = 0;
    for (const TerrainSplit& split : TerrainSplits)
        siblings += split.longitudes * split.latitudes - 1;
    return siblings;
}
static_assert(countSiblings() == 58, "the budget of the levels");

int limitToCpu(int cpu, int64_t threads) {
    return static_cast<int>(std::min<int64_t>(cpu, threads));
}

} // namespace

ThreadBudget calcThreadBudget(unsigned long systemMemoryBytes, unsigned cpuCoreCount) {
    const int cores = static_cast<int>(std::min(cpuCoreCount, 1024u));
    const int cpu = cores < BusyThreads ? std::min(2 * cores, BusyThreads) : cores;
    const int64_t usable = static_cast<int64_t>(systemMemoryBytes / 10 * 7) - ReservedBytes;
    return {cpu, limitToCpu(cpu, usable / ((countSiblings() + 1) * TileBytes)),
            limitToCpu(cpu, usable / (2 * TileBytes))};
}

} // namespace skyvane
