#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

/// True when a display server can be reached.
bool isDisplayAvailable();

/// Pixels of the desktop, from the engine's list of video modes, or from the display server where that list is empty;
/// 0 by 0 without a display.
irr::core::dimension2d<unsigned> readDesktopSize();

} // namespace skyvane
