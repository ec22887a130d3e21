#pragma once

namespace skyvane {

/// Whether a finger holds one key.
///
/// A press inside begins, a release ends, and so does a finger that slides off the key. A finger that comes from
/// outside doesn't press what it slides over.
class KeyPress {
public:
    enum class Kind { Press, Move, Release };

    /// One event of the finger; `isDown` is the state of the finger with it. True when the key hears of it: pressed or
    /// released inside, or left while it was pressed.
    bool process(Kind kind, bool inside, bool isDown);
    void reset() { *this = KeyPress(); }

    bool isPressed() const { return pressed_; }
    /// The finger came down elsewhere and is still down.
    bool isPressedOutside() const { return pressedOutside_; }

private:
    bool pressed_ = false;
    bool pressedOutside_ = false;
};

} // namespace skyvane
