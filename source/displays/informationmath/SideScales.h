#pragma once

namespace skyvane {

/// The step of a scale, 1, 2 or 5 times a power of ten, not below `least`, at which its marks lie at least so many
/// pixels apart. 0 where no scale can be drawn.
double chooseScaleStep(double unitsPerPixel, double leastPixels, double least);

} // namespace skyvane
