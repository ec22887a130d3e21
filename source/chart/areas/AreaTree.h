#pragma once

#include "chart/areas/AreaLeaf.h"
#include "chart/areas/AreaNode.h"

#include <memory>
#include <vector>

namespace skyvane {

/// Nodes of the fixed partition of the earth. Their numbers are a data format: they name the leaves of area files and
/// the tiles of backgrounds.
constexpr int AreaCount = 431576;
constexpr int LastAreaIndex = AreaCount - 1;
constexpr int AreaLeafCount = 259200;

/// Counts that a level is split into.
struct AreaSplit {
    int longitudes;
    int latitudes;
};

/// From the root down; counts of 0 end them.
constexpr AreaSplit WorldSplits[] = {{5, 5}, {3, 3}, {3, 3}, {2, 2}, {2, 2}, {2, 2}, {2, 1}, {0, 0}};

/// Owns the nodes of a tree, each kind in one piece of memory. The table that createWorldWideAreaTree fills looks into
/// it and is of no use without it.
struct AreaArena {
    std::vector<AreaNode> nodes;
    std::vector<AreaLeaf> leafs;
};

/// Makes the tree of the whole earth and fills a table of AreaCount pointers, by node number.
///
///     std::vector<IArea*> table(AreaCount);
///     const std::unique_ptr<AreaArena> areas = createWorldWideAreaTree(false, table.data());
///
/// Number 0 is the root, longitude 0 to 360 and latitude 90 to -90. Then depth first, children west to east and north
/// to south within a column. Seven levels below the root the leaves are half a degree wide and high. With `verbose`
/// each number is printed.
std::unique_ptr<AreaArena> createWorldWideAreaTree(bool verbose, IArea** table);

/// Makes the children of a node and all that is below them. `splits` has one entry for each level and ends with counts
/// of 0; the last level's children are leaves. `counter` is the next free number.
void subdivideArea(AreaNode& area, int index, const AreaSplit* splits, int& counter, bool verbose, IArea** table,
                   AreaArena& arena);

/// The area of that number, null outside the table.
IArea* getAreaOfTable(IArea* const* table, int index);

} // namespace skyvane
