#pragma once

#include "core/geometry/EngineMath.h"
#include "gui/keys/KeyPress.h"

#include <array>

namespace skyvane {

/// Makes one pointer of the fingers on the glass and the mouse, for on-screen keys.
///
/// The finger that came down last is the pointer: who types with two thumbs lifts the first after the second has come
/// down. The window system's mouse events of a finger repeat what the finger told and count for nothing; a mouse of its
/// own counts. A finger that never leaves is forgotten when the next one comes down.
///
/// Says of each event whether the keys keep it to themselves: all of a finger that came down on them.
class FingerTracker {
public:
    struct Event {
        bool isTouch = false; ///< Else it is the mouse's.
        unsigned finger = 0;  ///< Which, for a touch.
        KeyPress::Kind kind = KeyPress::Kind::Move;
        irr::core::vector2d<int> position;
    };
    struct Result {
        bool counts = false; ///< The pointer does this now; else the event belongs to another finger or repeats one.
        bool isKept = false;
    };

    /// `onKeys`: whether the position lies on a key.
    Result process(const Event& event, bool onKeys);

    /// A finger, or the mouse's button, is down that came down off the keys.
    bool isDownOutside() const { return down_ && !onKeys_; }
    bool isDown() const { return down_; }

private:
    struct Finger {
        unsigned id = 0;
        bool isTouch = false;
        bool operator==(const Finger& other) const { return id == other.id && isTouch == other.isTouch; }
    };
    static constexpr std::size_t maxKept = 16;

    bool isEchoOfTouch(const Event& event) const;
    Result begin(const Finger& finger, bool onKeys);
    bool isKept(const Finger& finger) const;
    void keep(const Finger& finger);
    void forget(const Finger& finger);

    Finger pointer_;
    bool down_ = false;
    bool onKeys_ = false;
    std::array<Finger, maxKept> kept_{}; ///< Fingers that came down on keys, oldest first.
    std::size_t keptCount_ = 0;
    bool hasTouch_ = false; ///< A touch came, and since then no mouse of its own.
    irr::core::vector2d<int> touchPosition_;
    bool touchWasKept_ = false;
};

} // namespace skyvane
