#include "gui/keys/KeyRepeat.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr double slowest = 1.0;
constexpr double fastest = 0.1;
constexpr double slowUntil = 0.5; ///< Seconds since the press; at three times that the fastest is reached.

} // namespace

double repeatInterval(double heldSeconds) {
    const double interval = slowest - (slowest - fastest) / (2.0 * slowUntil) * (heldSeconds - slowUntil);
    return std::clamp(interval, fastest, slowest);
}

bool KeyRepeat::takeDue(double now) {
    const double held = now - pressedAt_;
    if (held > longestHoldSeconds || now - repeatedAt_ < repeatInterval(held))
        return false;
    repeatedAt_ = now;
    return true;
}

} // namespace skyvane
