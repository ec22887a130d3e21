#include "chart/geodesy/ChartPosition.h"
#include "core/log/Logger.h"
#include "terrain/jobs/TerrainJob.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr const char* EdgeText =
    "Synchronizing terrain data. This will take a long time.\n"
    "Your CPU is occupied by the calculation and may become hot.\n"
    "This is normal and modern CPUs also have the ability to regulate their clock depending on the temperature.";

constexpr double SeamLongitude = 360.0;
constexpr double SeamTolerance = 0.0001;

/// Copies samples that lie `step` apart in both tiles; true when one was another before.
bool copySamples(const int16_t* from, int16_t* to, int count, int step) {
    bool changed = false;
    for (int i = 0; i < count * step; i += step) {
        changed |= to[i] != from[i];
        to[i] = from[i];
    }
    return changed;
}

/// Nodes at or below this one that touch the seam from the west, above the leaves, each before its children.
void findSeamNodes(MMTerrainNode* node, std::vector<MMTerrainNode*>& found) {
    const bool touches = node->getNWEdge().longitude < SeamLongitude - SeamTolerance &&
                         node->getSEEdge().longitude >= SeamLongitude - SeamTolerance;
    if (!touches || node->isLeaf())
        return;
    found.push_back(node);
    for (int index = 0; index < node->getChildrenCount(); ++index)
        findSeamNodes(node->getChild(index), found);
}

} // namespace

bool TerrainJob::synchronizeWithNeighborsAndSave() {
    std::vector<MMTerrainNode*> nodes;
    for (int id = 0; id < TerrainNodeCount; ++id)
        if (hasData_[static_cast<size_t>(id)])
            nodes.push_back(root_ + id);
    progress_.setTitle(EdgeText);
    const auto show = [&](size_t done) {
        progress_.setProgress(static_cast<double>(done) / static_cast<double>(std::max<size_t>(nodes.size(), 1)));
    };
    return forEachNode(
        nodes, budget_.maxSyncThreadCount, [this](auto& node) { return synchronizeNode(node); }, show);
}

// Threads need no locks: a node takes first rows and columns of its neighbours, and changes only its own last ones;
// and a file is another one only as a whole.
bool TerrainJob::synchronizeNode(MMTerrainNode& node) {
    const Heights own = loadMMDataWithCollector(node);
    if (!own)
        return true;
    bool changed = false;
    const auto take = [&](int east, int south, int place, int count, int step) {
        const MMTerrainNode* neighbour = node.getNeighbour(east, south);
        if (!neighbour || !has(*neighbour))
            return;
        if (const Heights heights = loadMMDataWithCollector(*neighbour))
            changed |= copySamples(heights.get(), own.get() + place, count, step);
    };
    take(1, 0, TileSteps, TileSteps, TileSide);
    take(0, 1, TileSteps * TileSide, TileSteps, 1);
    take(1, 1, TileSamples - 1, 1, 1);
    return !changed || save(node, own.get());
}

bool TerrainJob::synchronize0Longitude(double from, double to) {
    std::vector<MMTerrainNode*> nodes;
    findSeamNodes(root_, nodes);
    const auto show = [&](size_t done) {
        progress_.setProgress(from + (to - from) * static_cast<double>(done) / static_cast<double>(nodes.size()));
    };
    return forEachNode(
        nodes, budget_.maxSyncThreadCount, [this](auto& node) { return synchronizeSeamNode(node); }, show);
}

bool TerrainJob::synchronizeSeamNode(MMTerrainNode& node) {
    if (!has(node))
        return true;
    const ChartPosition &nw = node.getNWEdge(), &se = node.getSEEdge();
    const double width = se.longitude - nw.longitude;
    const int column = static_cast<int>(std::lround((SeamLongitude - nw.longitude) / width * TileSteps));
    const ITerrainNode* other =
        node.getParent() ? findFittingNode(root_, {0.0, nw.latitude}, {width, se.latitude}) : root_;
    if (!other) {
        logText("No corresponding node for node " + std::to_string(node.getId()) + " for 0-Synchronization found.\n");
        return true;
    }
    const auto* partner = static_cast<const MMTerrainNode*>(other);
    const Heights own = loadMMDataWithCollector(node);
    if (!own || !has(*partner))
        return true;
    const Heights heights = loadMMDataWithCollector(*partner);
    if (!heights)
        return true;
    bool changed = copySamples(heights.get(), own.get() + column, TileSide, TileSide);
    if (column < TileSteps)
        changed |= copySamples(heights.get(), own.get() + column + 1, TileSide, TileSide);
    return !changed || save(node, own.get());
}

} // namespace skyvane
