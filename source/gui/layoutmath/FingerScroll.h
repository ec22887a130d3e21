#pragma once

namespace skyvane {

/// Where a content that a finger drags stands, and how it glides on when the finger leaves.
///
///     scroll.setLengths(content, view);
///     scroll.press(y); scroll.move(y); scroll.release(now);    // from the events
///     if (scroll.update(now)) ...                               // each frame: true when it glided
///
/// The offset is that of the content's start in pixels: from 0 down to what the content is longer than the view, so
/// that a shorter content doesn't move. A glide slows down with the third power of time, for at most one second, and
/// ends at the ends of the content. Times in seconds.
class FingerScroll {
public:
    /// A finger that moved by more than this share of the view means no click.
    explicit FingerScroll(double clickShare = 0.01) : clickShare_(clickShare) {}

    void setLengths(int contentPixels, int viewPixels);
    int getOffset() const;
    /// 0 at the start, 1 at the end; 0 where nothing scrolls.
    float getShare() const;
    /// Ends a glide.
    void setShare(float share);
    /// By so many pixels, towards the end of the content for negative ones. Ends a glide.
    void moveBy(int pixels);
    /// How much of the content the view shows, 0 to 1.
    float getVisibleShare() const;
    bool canScroll() const { return range_ > 0; }

    void press(int position);
    /// Where nothing scrolls the finger's way counts all the same: a long one is no click.
    void move(int position);
    /// The finger left: the content glides on.
    void release(double now);
    bool isDragging() const { return state_ == State::Dragging; }
    /// The finger moved by more than the click's share of the view since it came: it means no click.
    bool isDragged() const { return dragged_; }

    /// Works at most every 0.033 s. True when the offset changed.
    bool update(double now);

    /// Below this a glide ends, in pixels per second.
    static constexpr double stopSpeed = 12.0;

private:
    enum class State { Idle, Dragging, Gliding };

    void setOffset(double offset);
    bool glide(double now, double elapsed);

    double clickShare_;
    double offset_ = 0.0;
    double lastOffset_ = 0.0;
    double speed_ = 0.0;
    double lastUpdate_ = 0.0;
    double releaseTime_ = 0.0;
    double startOffset_ = 0.0;
    int startPosition_ = 0;
    int range_ = 0;
    int content_ = 0;
    int view_ = 0;
    bool dragged_ = false;
    State state_ = State::Idle;
};

} // namespace skyvane
