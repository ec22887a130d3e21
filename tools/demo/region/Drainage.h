#pragma once

#include "demo/region/HeightGrid.h"

#include <cstdint>

namespace skyvane::demo {

/// Where the water of each node of a grid goes.
struct Drainage {
    std::vector<int> receivers; ///< The node downstream; a node at sea or at the edge is its own.
    std::vector<int> order;     ///< All nodes, each behind its receiver: from the sea to the springs.
    std::vector<double> areas;  ///< Square metres that drain through the node, its own included.
};

/// Fills pits so that water flows from everywhere to the sea: each node of the result is above its receiver. Nodes with
/// a coast value of 0 or below are sea.
Drainage floodAndDrain(HeightGrid& heights, const HeightGrid& coast);
/// The steepest ways down of a surface without pits.
Drainage drainSteepest(const HeightGrid& heights, const HeightGrid& coast);

/// A surface worn by rivers: rises by `uplift` and is cut by the water until both hold the balance. In metres, with the
/// highest node at `summitMetres`; sea is negative by the coast value. Free of pits.
HeightGrid growMountains(const HeightGrid& coast, const HeightGrid& uplift, uint64_t seed, double summitMetres);

} // namespace skyvane::demo
