#include "terrain/files/TerrainIndexFile.h"
#include "terrain/jobs/TerrainJob.h"

#include <algorithm>
#include <filesystem>

namespace skyvane {
namespace {

constexpr const char* LevelText = "Calculating terrain levels. This will take a long time.\n"
                                  "In case of slow memory: Perhaps consider running it over night.\n"
                                  "Your CPU is occupied by the calculation (Threads: ";
constexpr const char* LevelTextEnd =
    ") and may become hot.\n"
    "This is normal and modern CPUs also have the ability to regulate their clock depending on the temperature.";

/// The nodes whose level has something below it, from the deepest level above the leaves to the root.
std::vector<std::vector<MMTerrainNode*>> findParents(MMTerrainNode* root, const std::vector<char>& hasData) {
    std::vector<std::vector<MMTerrainNode*>> levels;
    std::vector<MMTerrainNode*> nodes;
    for (int id = 0; id < TerrainNodeCount; ++id)
        if (hasData[static_cast<size_t>(id)])
            nodes.push_back(root + id);
    for (int level = TerrainLevels - 2; level >= 0; --level) {
        std::vector<MMTerrainNode*> parents;
        for (MMTerrainNode* node : nodes)
            if (parents.empty() || parents.back() != node->getParent())
                parents.push_back(node->getParent());
        std::sort(parents.begin(), parents.end());
        parents.erase(std::unique(parents.begin(), parents.end()), parents.end());
        levels.push_back(parents);
        nodes = std::move(parents);
    }
    return levels;
}

int16_t roundedMean(int sum, int count) {
    return static_cast<int16_t>((2 * sum + (sum < 0 ? -count : count)) / (2 * count));
}

/// The mean of columns x rows samples; NoHeight when none has data.
int16_t meanOf(const int16_t* samples, int columns, int rows) {
    int sum = 0, count = 0;
    for (int y = 0; y < rows; ++y, samples += TileSide)
        for (int x = 0; x < columns; ++x)
            if (samples[x] != NoHeight) {
                sum += samples[x];
                ++count;
            }
    return count ? roundedMean(sum, count) : NoHeight;
}

} // namespace

void averageIntoParent(const int16_t* child, int columns, int rows, int column, int row, int16_t* parent) {
    const int width = TileSteps / columns, height = TileSteps / rows;
    for (int y = 0; y < height; ++y) {
        const int16_t* from = child + y * rows * TileSide;
        int16_t* to = parent + (row * height + y) * TileSide + column * width;
        for (int x = 0; x < width; ++x, from += columns) {
            const int16_t mean = meanOf(from, columns, rows);
            if (mean != NoHeight)
                to[x] = mean;
        }
    }
}

bool TerrainJob::recalculateMipMapLevels() {
    findLeaves();
    const auto levels = findParents(root_, hasData_);
    size_t total = 0, before = 0;
    std::vector<char> planned(hasData_.size());
    for (const auto& level : levels)
        for (const MMTerrainNode* node : level)
            planned[static_cast<size_t>(node->getId())] = 1;
    for (const auto& level : levels)
        total += level.size();
    // What is on the disk is listed at any moment, also when the job doesn't come to its end.
    if (!writeIndex(planned))
        return false;
    progress_.setTitle(LevelText + std::to_string(std::max(budget_.maxThreadCount, 1)) + LevelTextEnd);
    for (const auto& level : levels) {
        const auto show = [&](size_t done) {
            progress_.setProgress(static_cast<double>(before + done) / static_cast<double>(std::max<size_t>(total, 1)));
        };
        if (!forEachNode(
                level, budget_.maxThreadCount, [this](auto& node) { return computeLevelTile(node); }, show))
            return false;
        before += level.size();
    }
    std::vector<char> computed = hasData_;
    for (int id = 0; id < TerrainNodeCount; ++id)
        if (root_[id].isLeaf())
            computed[static_cast<size_t>(id)] = 0;
    return writeIndex(computed);
}

/// Removes the tiles of common.ti that aren't wanted, and lists those that are.
bool TerrainJob::writeIndex(const std::vector<char>& wanted) {
    const std::string path = folder_ + CommonIndexName;
    for (const int id : parseTIFile(path, nullptr, nullptr))
        if (!wanted[static_cast<size_t>(id)] && !root_[id].isLeaf()) {
            std::error_code ignored;
            std::filesystem::remove(getTilePath(folder_, id), ignored);
        }
    std::list<int> ids;
    for (int id = 0; id < TerrainNodeCount; ++id)
        if (wanted[static_cast<size_t>(id)])
            ids.push_back(id);
    return writeTIFile(path, NoIndexText, ids, NoIndexText);
}

bool TerrainJob::computeLevelTile(MMTerrainNode& node) {
    Heights own(nullptr, {&collector_});
    for (int index = 0; index < node.getChildrenCount(); ++index) {
        const MMTerrainNode& child = *node.getChild(index);
        const Heights heights = has(child) ? loadMMDataWithCollector(child) : Heights(nullptr, {&collector_});
        if (!heights) {
            hasData_[static_cast<size_t>(child.getId())] = 0; // a leaf that can't be read
            continue;
        }
        if (!own) {
            own = collector_.take();
            std::fill(own.get(), own.get() + TileSamples, NoHeight);
        }
        averageIntoParent(heights.get(), node.getColumns(), node.getRows(), index % node.getColumns(),
                          index / node.getColumns(), own.get());
    }
    if (!own)
        return true;
    hasData_[static_cast<size_t>(node.getId())] = 1;
    return save(node, own.get());
}

} // namespace skyvane
