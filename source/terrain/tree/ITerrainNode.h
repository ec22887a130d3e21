#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <memory>

namespace skyvane {

class ITerrainData;
class ITerrainProgress;

/// A cell of the terrain tree and, at and below it, the heights of the ground there.
///
/// The tree and its tiles belong to the terrain thread while that runs, and to whoever has paused it otherwise.
class ITerrainNode {
public:
    virtual ~ITerrainNode() = default;

    /// Metres above the sea at a position, for whom samples of this density (per square kilometre) suffice: from the
    /// deepest tile on the way down whose own density is still below it, or else, where that one has no data, from a
    /// coarser one. 0 where no tile has data; where there is no tile at all, or the position isn't finite, 0 when
    /// zeroIfMissing, else infinity. Not interpolated, it is the nearest sample; heights are whole metres.
    virtual float getHeight(const ChartPosition& position, const double& density, bool interpolate,
                            bool zeroIfMissing) = 0;
    virtual const ChartPosition& getNWEdge() const = 0;
    virtual const ChartPosition& getSEEdge() const = 0;
    virtual int getId() const = 0;
    /// Reads the node's tile from the folder, whose name ends in a slash. Never null, but maybe without heights.
    virtual std::unique_ptr<ITerrainData> loadCorrespondingData(const char* folder) = 0;
    /// False when the disk refuses; the old tile stays then.
    virtual bool saveCorrespondingData(const char* folder, const ITerrainData* data) = 0;
    virtual int getChildrenCount() const = 0;
    virtual ITerrainNode* getChild(int index) = 0;
    /// Computes the coarser tiles and the shared edges of all at and below this node, see TerrainUpdateJob. Called on
    /// the root. True when it went through to the end.
    virtual bool OnUpdate(const char* folder, ITerrainProgress* progress, unsigned long systemMemoryBytes,
                          unsigned cpuCoreCount) = 0;
};

/// The node at or below the root whose corners equal these within 0.0001 degrees; null when there is none. The east
/// edge is raised by whole turns while it lies west of the west edge.
ITerrainNode* findFittingNode(ITerrainNode* root, const ChartPosition& nw, const ChartPosition& se);

} // namespace skyvane
