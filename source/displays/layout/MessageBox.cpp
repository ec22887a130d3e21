#include "displays/layout/MessageBox.h"

#include "core/text/Numbers.h"
#include "core/time/Time.h"

#include <algorithm>

namespace skyvane {

namespace {

constexpr int margin = 5;
constexpr int fadeMilliseconds = 1000;

uint32_t withAlpha(uint32_t color, uint32_t alpha) {
    return (color & 0x00ffffffu) | alpha << 24;
}

bool overlaps(const ClaimedYArea& area, int top, int bottom) {
    const auto inside = [&](int y) { return y >= area.from && y <= area.to; };
    return !area.isEmpty() && (inside(top) || inside(bottom) || (top < area.from && bottom > area.to));
}

} // namespace

MessageRects placeMessageBox(const irr::core::dimension2d<irr::u32>& textSize, bool close, const MessageSpace& space) {
    const int width = static_cast<int>(std::min(textSize.Width, 1u << 20));
    const int height = static_cast<int>(std::min(textSize.Height, 1u << 20));
    const int closeRoom = close ? space.buttonHeight + 10 : 0;
    const int x = std::max(0, roundHalfAway(space.screenWidth * 0.5 - width * 0.5));
    int bottom = space.bottom - margin;
    if (overlaps(space.claimed, bottom - closeRoom - height, bottom))
        bottom = space.claimed.from - margin;
    const int textBottom = bottom - closeRoom;
    const int textTop = textBottom - height;
    MessageRects rects;
    rects.text = irr::core::rect<int>(x, textTop, x + width, textBottom);
    rects.box = irr::core::rect<int>(x - margin, textTop - margin, x + width + 2 * margin, bottom + margin);
    const double boxWidth = rects.box.getWidth();
    rects.close = irr::core::rect<int>(x + static_cast<int>(0.125 * boxWidth), bottom - space.buttonHeight / 2,
                                       x + static_cast<int>(0.375 * boxWidth), bottom);
    return rects;
}

uint32_t messageBoxColor(MESSAGECOLOR level) {
    switch (level) {
    case MESSAGE_GREY:
        return 0xc8c8c8c8u;
    case MESSAGE_YELLOW:
        return 0xc8ffff00u;
    case MESSAGE_RED:
        return 0xc8ff0000u;
    default:
        return 0x8000ff00u;
    }
}

void MessageBox::show(const MessageRects& rects, Colors colors, int durationMilliseconds, unsigned nowMilliseconds) {
    rects_ = rects;
    colors_ = colors;
    startMilliseconds_ = nowMilliseconds;
    durationMilliseconds_ = durationMilliseconds;
    visible_ = true;
}

void MessageBox::hide() {
    visible_ = false;
    pressed_ = false;
}

bool MessageBox::update(unsigned nowMilliseconds, Colors& colors) {
    if (!visible_)
        return false;
    const double remaining = static_cast<double>(durationMilliseconds_) - TimeDiff(nowMilliseconds, startMilliseconds_);
    if (remaining < 0.0) {
        hide();
        return false;
    }
    if (remaining < fadeMilliseconds) {
        const uint32_t alpha = colors_.box >> 24;
        colors_.text = withAlpha(colors_.text, alpha);
        colors_.box = withAlpha(colors_.box, static_cast<uint32_t>(alpha * (remaining / 1000.0) + 0.5));
    }
    colors = colors_;
    return true;
}

MessageBox::Answer MessageBox::press(int x, int y) {
    if (!visible_)
        return Answer::NotMine;
    pressed_ = contains(x, y);
    return pressed_ ? Answer::Consumed : Answer::NotMine;
}

MessageBox::Answer MessageBox::release(int x, int y) {
    if (!visible_ || !pressed_)
        return Answer::NotMine;
    pressed_ = false;
    if (!contains(x, y))
        return Answer::Consumed;
    hide();
    return Answer::Dismissed;
}

bool MessageBox::contains(int x, int y) const {
    return rects_.box.isPointInside(irr::core::vector2d<int>(x, y));
}

} // namespace skyvane
