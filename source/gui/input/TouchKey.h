#pragma once

#include "core/engine/EngineRef.h"
#include "gui/font/CachedText.h"
#include "gui/keys/KeyPress.h"
#include "gui/keys/KeyRepeat.h"

#include <irrlicht.h>

namespace skyvane {

class FlexibleFont;
class ICommonAppContext;

/// One key on the screen: its place, its look, and whether a finger holds it. Main thread only; drawing allocates
/// nothing while the characters stay.
class TouchKey {
public:
    /// Shows the texture, or its characters when that is null. The context outlives the key.
    TouchKey(ICommonAppContext* context, wchar_t character, wchar_t shiftCharacter, irr::EKEY_CODE keyCode,
             irr::core::rect<int> rect, irr::video::ITexture* texture);

    /// A press, move or release of the left button; other events are none of the key's. True when the key was pressed
    /// or let go, also by a finger that slides off. `inside` tells whether the event lies on the key.
    bool processMouseEvent(const irr::SEvent::SMouseInput& mouse, bool* inside);
    /// As if never touched.
    void reset() { press_.reset(); }
    /// The key as it is now: pressed down or released, with its character of the present shift state.
    irr::SEvent getEvent() const;

    /// Draws it; true when it has been held so long that its event is due again.
    bool render(FlexibleFont* font, bool shift, irr::video::SColor color);
    /// The two halves of render(), so that many keys draw all bodies at once.
    void drawBody(irr::video::SColor color) const;
    void drawFace(FlexibleFont* font, bool shift, irr::video::SColor color);
    bool isRepeatDue();

    /// Shown in place of the key's own texture; null for that again.
    void setOverrideTexture(irr::video::ITexture* texture);
    irr::video::ITexture* getOverrideTexture() const { return overrideTexture_.get(); }
    void setShiftPressed(bool pressed) { shiftPressed_ = pressed; }
    bool isPressed() const { return press_.isPressed(); }
    /// A finger is down that came down elsewhere.
    bool mousePressedDownOutside() const { return press_.isPressedOutside(); }

    irr::EKEY_CODE getKeyCode() const { return keyCode_; }
    const irr::core::rect<int>& getRect() const { return rect_; }
    bool isAt(irr::core::position2di position) const;

private:
    void drawCharacters(FlexibleFont* font, bool shift, irr::video::SColor frame);

    ICommonAppContext* context_;
    wchar_t character_;
    wchar_t shiftCharacter_;
    irr::EKEY_CODE keyCode_;
    irr::core::rect<int> rect_;
    EngineRef<irr::video::ITexture> texture_;
    EngineRef<irr::video::ITexture> overrideTexture_;
    KeyPress press_;
    KeyRepeat repeat_;
    bool shiftPressed_ = false;
    CachedText label_;
    CachedText corner_;
};

} // namespace skyvane
