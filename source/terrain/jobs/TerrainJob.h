#pragma once

#include "core/threads/ThreadPool.h"
#include "terrain/files/TerrainTile.h"
#include "terrain/jobs/ThreadBudget.h"
#include "terrain/tree/AllocationCollector.h"
#include "terrain/tree/ITerrainProgress.h"
#include "terrain/tree/MMTerrainNode.h"

#include <functional>
#include <string>
#include <vector>

namespace skyvane {

/// Derives from the installed leaf tiles what they don't bring: the coarser levels, the shared edges by which tiles
/// meet without cracks, and the seam at longitude 360, in this order.
///
///     if (root->OnUpdate(folder, &progress, memory, cores)) markClean();
///
/// All results are derived from the leaves' own samples, and each file is replaced as a whole: a job that was
/// cancelled, killed or stopped by a full disk does no harm, and the next one begins anew. Memory: two tiles a thread.
///
/// The tree and its tiles belong to the job while it runs.
class TerrainJob {
public:
    using Collector = ArrayAllocationCollector<int16_t, TileSamples>;
    using Heights = Collector::Array;

    TerrainJob(MMTerrainNode* root, std::string folder, ITerrainProgress& progress, const ThreadBudget& budget);

    /// True when all of it is done.
    bool run();

    // The steps.

    /// Computes every node above the leaves that has data below it, and writes common.ti. What an earlier job wrote for
    /// nodes that have no data any more is removed.
    bool recalculateMipMapLevels();
    /// Gives every tile the first column of its east neighbour, the first row of its south and the first sample of its
    /// south-east neighbour as its last ones.
    bool synchronizeWithNeighborsAndSave();
    /// Gives the tiles above the leaves that reach across longitude 360 the first column of longitude 0 there.
    bool synchronize0Longitude(double from, double to);

    /// Tiles that were in memory at once.
    size_t getPeakTiles() const { return collector_.getCount(); }

private:
    using NodeWork = std::function<bool(MMTerrainNode&)>;

    void findLeaves();
    bool writeIndex(const std::vector<char>& wanted);
    bool forEachNode(const std::vector<MMTerrainNode*>& nodes, int threads, const NodeWork& work,
                     const std::function<void(size_t)>& show);
    bool computeLevelTile(MMTerrainNode& node);
    bool synchronizeNode(MMTerrainNode& node);
    bool synchronizeSeamNode(MMTerrainNode& node);
    Heights loadMMDataWithCollector(const MMTerrainNode& node);
    bool save(const MMTerrainNode& node, const int16_t* heights);
    bool has(const MMTerrainNode& node) const { return hasData_[static_cast<size_t>(node.getId())] != 0; }

    MMTerrainNode* root_;
    std::string folder_;
    ITerrainProgress& progress_;
    ThreadBudget budget_;
    Collector collector_{"mmDataCollector"};
    std::vector<char> hasData_; ///< By node id: a tile that the job may believe. Threads write different places.
    ThreadPool pool_;           ///< Ends first.
};

/// The means of a child's samples go into its block of the parent's tile, the child being at a column and row of
/// `columns` by `rows` children. A mean is that of the samples with data, to the nearest metre, halves away from zero;
/// places without any stay as they are.
void averageIntoParent(const int16_t* child, int columns, int rows, int column, int row, int16_t* parent);

} // namespace skyvane
