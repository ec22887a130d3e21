#pragma once

#include "core/engine/OwnEvents.h"

#include <cstdint>

namespace skyvane {

/// One finger's touch, move or lift.
///
///     if (isTouchEvent(event)) { const TouchEvent touch = unpackTouchEvent(event); ... }
struct TouchEvent {
    enum Phase : std::uint32_t { Pressed = 0, Moved = 1, Left = 2 };

    std::uint32_t id = 0; ///< the same from a finger's touch to its lift, never reused soon
    std::int32_t x = 0;   ///< pixels of the window
    std::int32_t y = 0;
    std::int32_t touchCount = 0; ///< fingers on the glass, after this event
    Phase phase = Pressed;
};

irr::SEvent packTouchEvent(const TouchEvent& touch);
bool isTouchEvent(const irr::SEvent& event);
/// A default-made touch for any other kind of event; an unknown phase reads as Left.
TouchEvent unpackTouchEvent(const irr::SEvent& event);

} // namespace skyvane
