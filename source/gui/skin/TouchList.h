#pragma once

#include <irrlicht.h>

namespace skyvane {

/// Gives the list that a combo box opens rows of this height, in pixels, and room for as many of them as the screen
/// has: below the box, or above it where there is more room. Only once, so that whoever
/// wants other rows can have them.
void fitListToFingers(irr::gui::IGUIListBox* list, int rowHeight);

} // namespace skyvane
