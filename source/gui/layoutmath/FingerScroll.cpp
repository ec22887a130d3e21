#include "gui/layoutmath/FingerScroll.h"

#include "core/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace skyvane {
namespace {

constexpr double updateSeconds = 0.033;

} // namespace

void FingerScroll::setLengths(int contentPixels, int viewPixels) {
    content_ = std::max(0, contentPixels);
    view_ = std::max(0, viewPixels);
    range_ = std::max(content_, view_) - view_;
    setOffset(offset_);
}

int FingerScroll::getOffset() const {
    return roundHalfAway(offset_);
}

float FingerScroll::getShare() const {
    return range_ > 0 ? static_cast<float>(offset_ / -range_) : 0.0f;
}

float FingerScroll::getVisibleShare() const {
    return content_ > view_ ? static_cast<float>(view_) / static_cast<float>(content_) : 1.0f;
}

void FingerScroll::setShare(float share) {
    state_ = State::Idle;
    setOffset(std::isfinite(share) ? -static_cast<double>(share) * range_ : offset_);
    lastOffset_ = offset_;
    speed_ = 0.0;
}

void FingerScroll::moveBy(int pixels) {
    state_ = State::Idle;
    setOffset(offset_ + pixels);
    lastOffset_ = offset_;
    speed_ = 0.0;
}

void FingerScroll::setOffset(double offset) {
    offset_ = std::max(-static_cast<double>(range_), std::min(offset, 0.0));
}

void FingerScroll::press(int position) {
    state_ = State::Dragging;
    dragged_ = false;
    startPosition_ = position;
    startOffset_ = offset_;
}

void FingerScroll::move(int position) {
    if (state_ != State::Dragging)
        return;
    const double way = static_cast<double>(position) - startPosition_;
    setOffset(startOffset_ + way);
    dragged_ = dragged_ || std::abs(way) > clickShare_ * view_;
}

void FingerScroll::release(double now) {
    if (state_ != State::Dragging)
        return;
    state_ = State::Gliding;
    releaseTime_ = now;
}

bool FingerScroll::update(double now) {
    const double elapsed = now - lastUpdate_;
    if (elapsed < updateSeconds)
        return false;
    lastUpdate_ = now;
    const bool moved = state_ == State::Gliding && glide(now, elapsed);
    if (state_ != State::Gliding)
        speed_ = (offset_ - lastOffset_) / elapsed;
    lastOffset_ = offset_;
    return moved;
}

bool FingerScroll::glide(double now, double elapsed) {
    const double left = std::max(0.0, 1.0 - (now - releaseTime_));
    const double speed = speed_ * left * left * left;
    const double before = offset_;
    setOffset(offset_ + elapsed * speed);
    const bool isAtEnd = offset_ >= 0.0 || offset_ <= -static_cast<double>(range_);
    if (std::abs(speed) < stopSpeed || isAtEnd) {
        state_ = State::Idle;
        lastOffset_ = offset_;
    }
    return offset_ != before;
}

} // namespace skyvane
