#pragma once

namespace skyvane {

class TerrainStore;
struct PointCall;

/// Fills in the heights of a profile, which of them are known, and the lowest and highest.
///
/// Each height is that of the terrain at its position, or of what rises above it between there and half way to its
/// neighbours, looked at more closely: a profile's points may lie half a mile apart, and a ridge between two of them
/// must not be missed, nor lost in the means of a coarse tile. The store is the caller's meanwhile.
void fillProfileHeights(TerrainStore& store, PointCall& call);

} // namespace skyvane
