#pragma once

#include "core/geometry/EngineMath.h"

#include <array>

namespace skyvane {

/// The buttons of a side view, in the order in which they stand.
namespace SideButton {
enum Kind { Airspaces, Narrow, Center, Widen, Ahead, FullScreen, Count };
}

/// Where they stand: in a row at the upper edge, from the right, as large as the program's buttons where there is room.
struct SideButtonPlaces {
    std::array<irr::core::rect<int>, SideButton::Count> buttons;
    /// Of the first one, while the others aren't shown: in the corner, where it hides least.
    irr::core::rect<int> alone;
    /// They leave enough of the panel to stay.
    bool mayStay = false;
};

SideButtonPlaces placeSideButtons(const irr::core::rect<int>& panel, int buttonWidth, int buttonHeight);

/// Digits that can be read at arm's length: by the size of the screen, the root of its pixels, and larger on a large
/// panel.
double sideTextHeight(const irr::core::rect<int>& panel, double screenUnit);

} // namespace skyvane
