#pragma once

#include "core/geometry/EngineMath.h"

#include <vector>

namespace skyvane {

/// How a window and its edit box make room for what covers the bottom of the screen, in pixels.
struct Clearance {
    int lift = 0;   ///< The window moves up by this.
    int shrink = 0; ///< Then the edit box is too high by this, and gives it up at its lower edge.
};

/// Keeps the window clear of the covers where there is room for all of it, with its buttons; else just the edit box,
/// with `margin` around. All in pixels of the screen. The upper edge of the edit box never leaves the screen.
Clearance clearOf(const std::vector<irr::core::rect<int>>& covers, const irr::core::rect<int>& editBox,
                  const irr::core::rect<int>& window, int margin);

} // namespace skyvane
