#pragma once

namespace skyvane {

/// When a map draws its tiles anew: at once in small views, after a pause in large ones, where that takes longest and
/// zooms come in storms. Seconds of one clock.
class RebuildTimer {
public:
    struct Situation {
        double viewArea = 0.0;    ///< Square degrees.
        double largestArea = 0.0; ///< Above it the tiles are not drawn.
        bool isPinching = false;
        bool isCovering = true; ///< The tiles cover the panel and tell the truth.
    };

    /// The tiles no longer tell the truth.
    void markDirty() { dirty_ = true; }
    bool isDirty() const { return dirty_; }
    /// A zoom or a rebuild has begun now.
    void delayFrom(double now, double viewArea) { earliest_ = now + delayFor(viewArea); }
    /// Whether a rebuild is due.
    bool isDue(double now, const Situation& situation) const;
    /// It has begun: the tiles will be true.
    void begin(double now, double viewArea);

    /// 0.35 s above a view area of 100, 0.25 s from 3 on, none below.
    static double delayFor(double viewArea);

private:
    bool dirty_ = true;
    double earliest_ = -1.0;
};

} // namespace skyvane
