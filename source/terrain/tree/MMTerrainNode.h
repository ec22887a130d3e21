#pragma once

#include "terrain/tree/ITerrainNode.h"
#include "terrain/tree/TerrainTreeShape.h"

#include <atomic>
#include <cstdint>

namespace skyvane {

class TerrainStore;

/// One of the 133,151 cells. They lie in one array by id, given depth first, each before its children, which come from
/// west to east within rows from north to south: so children are found by arithmetic.
class MMTerrainNode : public ITerrainNode {
public:
    float getHeight(const ChartPosition& position, const double& density, bool interpolate,
                    bool zeroIfMissing) override;
    const ChartPosition& getNWEdge() const override { return nw_; }
    const ChartPosition& getSEEdge() const override { return se_; }
    int getId() const override { return id_; }
    std::unique_ptr<ITerrainData> loadCorrespondingData(const char* folder) override;
    bool saveCorrespondingData(const char* folder, const ITerrainData* data) override;
    int getChildrenCount() const override { return getColumns() * getRows(); }
    MMTerrainNode* getChild(int index) override { return this + 1 + index * childStride(); }
    const MMTerrainNode* getChild(int index) const { return this + 1 + index * childStride(); }
    bool OnUpdate(const char* folder, ITerrainProgress* progress, unsigned long systemMemoryBytes,
                  unsigned cpuCoreCount) override;

    int getColumns() const { return isLeaf() ? 0 : TerrainSplits[level_].longitudes; }
    int getRows() const { return isLeaf() ? 0 : TerrainSplits[level_].latitudes; }
    bool isLeaf() const { return level_ == TerrainLevels - 1; }
    MMTerrainNode* getParent() const { return parent_; }
    /// The cell of the same size that many (-1, 0 or 1) cells to the east and south; null beyond the tree.
    const MMTerrainNode* getNeighbour(int east, int south) const;
    /// Samples of its tile per square kilometre; 0 outside the world, infinite for the root.
    double getDensity() const { return density_; }

    /// As getHeight, but NoHeight where no tile has data and MissingTile where there is no tile; no test for the sea.
    int16_t getRawHeight(const ChartPosition& position, double density, bool interpolate);

    /// Whether all of the cell is known to lie at sea level or outside the world. A missing tile isn't sea.
    bool isOcean() const { return ocean_; }
    /// To be called with the node's own tile, children first: it is sea when that is, and every child.
    void noteOcean(const int16_t* heights);
    bool isLoadable() const { return loadable_; }
    void setLoadable(bool loadable) { loadable_ = loadable; }
    /// Sets the flags of this node and of all below it: files are asked again, and what was known of the sea is not.
    void resetLoadable();

    /// The result where there is no tile.
    static constexpr int16_t MissingTile = -32767;

private:
    friend class TerrainStore;
    friend class TerrainSampler;

    /// How a height was found.
    struct Descent {
        const MMTerrainNode* chosen = nullptr;    ///< Where the way down ended.
        const MMTerrainNode* answering = nullptr; ///< Whose tile gave the height; null when none did, or the sea.
        const int16_t* heights = nullptr;         ///< Of the answering node.
        bool hole = false;                        ///< A tile on the way had no data at the place.
    };

    void init(TerrainStore* store, MMTerrainNode* parent, int& nextId);
    int childStride() const { return countBelow_; }
    bool contains(const ChartPosition& position) const;
    const MMTerrainNode* chooseChild(const ChartPosition& position, double density) const;
    int16_t hlp_getHeight(const ChartPosition& position, double density, bool interpolate, bool seaToo,
                          Descent& descent) const;
    bool isOutsideWorld() const;
    void setOceanOutsideWorld();

    TerrainStore* store_ = nullptr;
    MMTerrainNode* parent_ = nullptr;
    ChartPosition nw_{TerrainTreeWest, TerrainTreeNorth};
    ChartPosition se_{TerrainTreeEast, TerrainTreeSouth};
    double density_ = 0.0;
    /// Densities wanted above the first and up to the second end at this node, for a place inside it.
    double leastDensity_ = 0.0;
    double mostDensity_ = 0.0;
    int id_ = 0;
    int countBelow_ = 0; ///< Nodes at and below a child.
    int level_ = 0;
    std::atomic<bool> loadable_{true};
    std::atomic<bool> ocean_{false};
};

/// A height that a node has found, as getHeight gives it.
float toHeight(int16_t raw, bool zeroIfMissing);

} // namespace skyvane
