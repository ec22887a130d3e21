#pragma once

#include "core/geometry/EngineMath.h"
#include "gui/keys/KeyboardDefinition.h"

namespace skyvane {

/// Where a keyboard and its keys stand, in pixels of the screen.
struct KeyboardLayout {
    irr::core::rect<int> area;
    std::vector<irr::core::rect<int>> keys; ///< One for each key, row by row; neighbours touch.
};

/// Pixels of the height of a key, with so many rows: one and a half buttons, yet never more than half of the screen for
/// all rows. At least 1.
int keyHeight(irr::core::dimension2d<int> screen, int buttonHeight, int rows);

/// At the bottom of the screen, in the middle; never wider than the screen.
KeyboardLayout layOutKeyboard(const KeyboardDefinition& definition, irr::core::dimension2d<int> screen,
                              int buttonHeight);

} // namespace skyvane
