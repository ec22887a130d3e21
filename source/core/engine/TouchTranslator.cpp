#include "core/engine/TouchTranslator.h"

#include "core/engine/TouchEvents.h"

#include <algorithm>

namespace skyvane {

TouchTranslator::Events TouchTranslator::translate(const RawTouch& raw) {
    Events events;
    if (!remember(raw))
        return events;
    TouchEvent touch;
    touch.id = raw.id;
    touch.x = raw.x;
    touch.y = raw.y;
    touch.touchCount = count_;
    touch.phase = raw.kind == RawTouch::Begin    ? TouchEvent::Pressed
                  : raw.kind == RawTouch::Update ? TouchEvent::Moved
                                                 : TouchEvent::Left;
    events.list[events.count++] = packTouchEvent(touch);
    if (raw.emulatesPointer)
        addMouse(events, raw);
    return events;
}

/// False for an update or end of a finger that never came down, and for a finger too many.
bool TouchTranslator::remember(const RawTouch& raw) {
    const auto end = down_.begin() + count_;
    const auto finger = std::find(down_.begin(), end, raw.id);
    if (raw.kind == RawTouch::Begin) {
        if (finger != end || count_ == MaxFingers)
            return false;
        down_[count_++] = raw.id;
        return true;
    }
    if (finger == end)
        return false;
    if (raw.kind == RawTouch::End)
        *finger = down_[--count_];
    return true;
}

void TouchTranslator::addMouse(Events& events, const RawTouch& raw) {
    irr::SEvent event{};
    event.EventType = irr::EET_MOUSE_INPUT_EVENT;
    event.MouseInput.X = raw.x;
    event.MouseInput.Y = raw.y;
    const auto add = [&](irr::EMOUSE_INPUT_EVENT kind, irr::u32 buttons) {
        event.MouseInput.Event = kind;
        event.MouseInput.ButtonStates = buttons;
        events.list[events.count++] = event;
    };
    if (raw.kind == RawTouch::Begin) {
        add(irr::EMIE_MOUSE_MOVED, 0); // the GUI learns what the pointer is over before the press
        add(irr::EMIE_LMOUSE_PRESSED_DOWN, irr::EMBSM_LEFT);
    } else if (raw.kind == RawTouch::Update) {
        add(irr::EMIE_MOUSE_MOVED, irr::EMBSM_LEFT);
    } else {
        add(irr::EMIE_LMOUSE_LEFT_UP, 0);
    }
}

} // namespace skyvane
