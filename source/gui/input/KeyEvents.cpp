#include "gui/input/KeyEvents.h"

namespace skyvane {

irr::SEvent keyEvent(int keyCode, wchar_t character, bool pressedDown, KeyModifiers modifiers) {
    irr::SEvent event{};
    event.EventType = irr::EET_KEY_INPUT_EVENT;
    event.KeyInput.Key = static_cast<irr::EKEY_CODE>(keyCode);
    event.KeyInput.Char = character;
    event.KeyInput.PressedDown = pressedDown;
    event.KeyInput.Shift = modifiers.shift;
    event.KeyInput.Control = modifiers.control;
    return event;
}

void typeKey(irr::IrrlichtDevice* device, int keyCode, wchar_t character, KeyModifiers modifiers) {
    device->postEventFromUser(keyEvent(keyCode, character, true, modifiers));
    device->postEventFromUser(keyEvent(keyCode, character, false, modifiers));
}

} // namespace skyvane
