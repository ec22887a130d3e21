#include "gui/keys/FingerTracker.h"

#include <algorithm>

namespace skyvane {

FingerTracker::Result FingerTracker::process(const Event& event, bool onKeys) {
    if (isEchoOfTouch(event))
        return {false, touchWasKept_};
    const Finger finger{event.isTouch ? event.finger : 0, event.isTouch};
    const bool isPointer = down_ && finger == pointer_;
    Result result{isPointer, isKept(finger)};
    if (event.kind == KeyPress::Kind::Press) {
        result = begin(finger, onKeys);
    } else if (event.kind == KeyPress::Kind::Release) {
        forget(finger);
        if (isPointer)
            down_ = false;
    } else if (!event.isTouch && !down_) {
        result = {false, onKeys}; // a mouse that only passes over the keys isn't over what lies behind them
    }
    hasTouch_ = event.isTouch;
    touchPosition_ = event.position;
    touchWasKept_ = result.isKept;
    return result;
}

/// The mouse stands where the touch was told a moment ago.
bool FingerTracker::isEchoOfTouch(const Event& event) const {
    return !event.isTouch && hasTouch_ && event.position == touchPosition_;
}

FingerTracker::Result FingerTracker::begin(const Finger& finger, bool onKeys) {
    forget(finger);
    if (onKeys)
        keep(finger);
    pointer_ = finger;
    down_ = true;
    onKeys_ = onKeys;
    return {true, onKeys};
}

bool FingerTracker::isKept(const Finger& finger) const {
    const auto end = kept_.begin() + keptCount_;
    return std::find(kept_.begin(), end, finger) != end;
}

void FingerTracker::keep(const Finger& finger) {
    if (keptCount_ == maxKept)
        forget(kept_.front());
    kept_[keptCount_++] = finger;
}

void FingerTracker::forget(const Finger& finger) {
    const auto end = kept_.begin() + keptCount_;
    keptCount_ = static_cast<std::size_t>(std::remove(kept_.begin(), end, finger) - kept_.begin());
}

} // namespace skyvane
