#pragma once

#include <irrlicht.h>

namespace skyvane {

struct KeyModifiers {
    bool shift = false;
    bool control = false;
};

irr::SEvent keyEvent(int keyCode, wchar_t character, bool pressedDown, KeyModifiers modifiers = {});

/// A press and a release, sent as a keyboard's: to the program's receiver, then to the GUI.
void typeKey(irr::IrrlichtDevice* device, int keyCode, wchar_t character, KeyModifiers modifiers = {});

} // namespace skyvane
