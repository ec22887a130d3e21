#pragma once

namespace skyvane {

/// Seconds between the repeats of a key that has been held so long: a second at first, shorter from half a second on,
/// a tenth of a second from one and a half seconds on.
double repeatInterval(double heldSeconds);

/// When a key that is held repeats. Times are seconds of one clock, handed in.
///
/// A key that seems to be held for very long is one whose release was lost: it repeats no more, so that a text is
/// neither filled nor emptied without end.
class KeyRepeat {
public:
    static constexpr double longestHoldSeconds = 15.0;

    void press(double now) { pressedAt_ = repeatedAt_ = now; }
    /// Whether a repeat is due; it then counts as done.
    bool takeDue(double now);

private:
    double pressedAt_ = 0.0;
    double repeatedAt_ = 0.0;
};

} // namespace skyvane
