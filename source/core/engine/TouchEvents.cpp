#include "core/engine/TouchEvents.h"

#include <cstring>

namespace skyvane {

static_assert(sizeof(TouchEvent) <= sizeof(irr::SEvent::SJoystickEvent), "the payload must fit");

irr::SEvent packTouchEvent(const TouchEvent& touch) {
    irr::SEvent event{};
    event.EventType = TouchInputEvent;
    std::memcpy(static_cast<void*>(&event.JoystickEvent), &touch, sizeof touch);
    return event;
}

bool isTouchEvent(const irr::SEvent& event) {
    return event.EventType == TouchInputEvent;
}

TouchEvent unpackTouchEvent(const irr::SEvent& event) {
    TouchEvent touch;
    if (!isTouchEvent(event))
        return touch;
    std::memcpy(static_cast<void*>(&touch), &event.JoystickEvent, sizeof touch);
    if (touch.phase > TouchEvent::Left)
        touch.phase = TouchEvent::Left;
    return touch;
}

} // namespace skyvane
