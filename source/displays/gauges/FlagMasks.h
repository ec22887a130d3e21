#pragma once

namespace skyvane {

/// The shapes that flag a dial, as coverage (0 to 1) at a point of the panel's square (0 to 1 both ways, y down). They
/// are computed and not loaded, so that a failure shows even when every image is missing. `softness` is the width of
/// the edge.
double crossCoverage(double x, double y, double softness);
/// The ring outside of the dial face.
double ringCoverage(double x, double y, double softness);

} // namespace skyvane
