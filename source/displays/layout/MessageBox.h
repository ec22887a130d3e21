#pragma once

#include "core/geometry/EngineMath.h"
#include "core/messages/MessageLevel.h"

#include <cstdint>

namespace skyvane {

/// A vertical range of the screen that panels claim for themselves.
struct ClaimedYArea {
    int from;
    int to;

    bool isEmpty() const { return from >= to; }
};

/// What the place of the message box depends on, in pixels of the screen.
struct MessageSpace {
    int screenWidth;
    int bottom; ///< The lowest place for text: above the bottom row of buttons and any indication of a download.
    int buttonHeight;
    ClaimedYArea claimed;
};

struct MessageRects {
    irr::core::rect<int> box;
    irr::core::rect<int> text;
    irr::core::rect<int> close; ///< The place of the word "Close", beneath the text.
};

/// Above the bottom, centred, out of a claimed range. `close` leaves room beneath the text.
MessageRects placeMessageBox(const irr::core::dimension2d<irr::u32>& textSize, bool close, const MessageSpace& space);

/// ARGB of the box for a level; any but the known ones is green.
uint32_t messageBoxColor(MESSAGECOLOR level);

/// The life of one message box: shown, renewed, faded, dismissed by a press and a release inside. Holds no text and
/// draws nothing.
class MessageBox {
public:
    struct Colors {
        uint32_t box; ///< ARGB
        uint32_t text;
    };
    enum class Answer { NotMine, Consumed, Dismissed };

    void show(const MessageRects& rects, Colors colors, int durationMilliseconds, unsigned nowMilliseconds);
    void hide();
    bool isVisible() const { return visible_; }
    const MessageRects& getRects() const { return rects_; }

    /// Once a frame. False when the box has reached its end, or wasn't visible. During its last second the box's alpha
    /// is multiplied each frame by the remaining seconds, and the result is kept; the text has the box's alpha of the
    /// start of the frame.
    bool update(unsigned nowMilliseconds, Colors& colors);

    Answer press(int x, int y);
    /// Dismissed: the release came inside the box that the press had armed, and the box is hidden.
    Answer release(int x, int y);

private:
    bool contains(int x, int y) const;

    MessageRects rects_;
    Colors colors_{0, 0};
    unsigned startMilliseconds_ = 0;
    int durationMilliseconds_ = 0;
    bool visible_ = false;
    bool pressed_ = false;
};

} // namespace skyvane
