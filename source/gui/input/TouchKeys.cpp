#include "gui/input/TouchKeys.h"

#include "core/ICommonAppContext.h"
#include "core/engine/MipmappedTexture.h"
#include "gui/keys/KeyCodes.h"

#include <algorithm>

namespace skyvane {
namespace {

irr::video::ITexture* load(ICommonAppContext& context, const std::string& image) {
    return image.empty() ? nullptr
                         : loadMipmappedTexture(context.getIrrlichtDevice()->getVideoDriver(), context.getPath(image));
}

/// The engine's enumeration and ours number the same keys.
bool isKey(const TouchKey& key, KeyCode code) {
    return static_cast<int>(key.getKeyCode()) == code;
}

} // namespace

TouchKeys::TouchKeys(ICommonAppContext* context)
    : context_(context), shiftOn_(EngineRef<irr::video::ITexture>::share(load(*context, "media/shift_on.png"))) {}

void TouchKeys::add(const KeyDefinition& definition, const irr::core::rect<int>& rect) {
    keys_.push_back(std::make_unique<TouchKey>(context_, definition.character, definition.shiftCharacter,
                                               static_cast<irr::EKEY_CODE>(definition.keyCode), rect,
                                               load(*context_, definition.image)));
}

bool TouchKeys::process(const irr::SEvent::SMouseInput& mouse) {
    bool isOnKeys = false;
    for (const std::unique_ptr<TouchKey>& key : keys_) {
        const bool wasPressed = key->isPressed();
        bool inside = false;
        const bool changed = key->processMouseEvent(mouse, &inside);
        isOnKeys = isOnKeys || inside;
        // A finger that only ends on a key hasn't meant it: what it typed is what it came down on.
        if (changed && (key->isPressed() || wasPressed))
            send(*key);
    }
    return isOnKeys;
}

void TouchKeys::send(const TouchKey& key) {
    const irr::SEvent event = key.getEvent();
    context_->getIrrlichtDevice()->postEventFromUser(event);
    if (!isKey(key, ShiftKey))
        setShift(false);
    else if (!event.KeyInput.PressedDown)
        setShift(!shift_);
    if (isKey(key, EnterKey) && !event.KeyInput.PressedDown)
        leaveFinishedBox();
}

/// Enter ends the entry of a line: what the keys hide comes back. An edit box that still waits for its text keeps them.
void TouchKeys::leaveFinishedBox() {
    irr::gui::IGUIEnvironment* gui = context_->getIrrlichtDevice()->getGUIEnvironment();
    irr::gui::IGUIElement* focus = gui->getFocus();
    if (!focus || focus->getType() != irr::gui::EGUIET_EDIT_BOX || !*focus->getText())
        return;
    if (!static_cast<irr::gui::IGUIEditBox*>(focus)->isMultiLineEnabled())
        gui->setFocus(nullptr);
}

void TouchKeys::setShift(bool pressed) {
    if (shift_ == pressed)
        return;
    shift_ = pressed;
    for (const std::unique_ptr<TouchKey>& key : keys_) {
        key->setShiftPressed(shift_);
        if (isKey(*key, ShiftKey))
            key->setOverrideTexture(shift_ ? shiftOn_.get() : nullptr);
    }
}

void TouchKeys::render(irr::video::SColor color) {
    FlexibleFont* font = context_->getFlexibleFont();
    for (const std::unique_ptr<TouchKey>& key : keys_)
        key->drawBody(color);
    for (const std::unique_ptr<TouchKey>& key : keys_)
        key->drawFace(font, shift_, color);
    for (const std::unique_ptr<TouchKey>& key : keys_)
        if (key->isRepeatDue())
            send(*key);
}

void TouchKeys::reset() {
    for (const std::unique_ptr<TouchKey>& key : keys_)
        key->reset();
    setShift(false);
}

bool TouchKeys::isAt(irr::core::position2di position) const {
    return std::any_of(keys_.begin(), keys_.end(),
                       [position](const std::unique_ptr<TouchKey>& key) { return key->isAt(position); });
}

} // namespace skyvane
