#pragma once

#include <irrlicht.h>
#include <string>

namespace skyvane {

/// Shows the text on a cleared screen until a key is released or the window is closed, and closes the window. The
/// caller ends the program afterwards: nothing of the engine may be used any more.
void showMissingFileScreen(irr::IrrlichtDevice* device, const std::wstring& text);

} // namespace skyvane
