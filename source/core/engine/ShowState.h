#pragma once

#include <irrlicht.h>

namespace skyvane {

/// Runs the device once, and when it is still running draws one black screen with the text centred, in white with the
/// skin's default font.
void showState(irr::IrrlichtDevice* device, const wchar_t* text);

/// The same screen without running the device before.
void drawStateScreen(irr::IrrlichtDevice* device, const wchar_t* text);

} // namespace skyvane
