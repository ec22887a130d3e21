#pragma once

#include <limits>

namespace skyvane {

/// The top of a side view's range of altitudes, in metres: chosen by the pilot, or following the flight.
///
/// The bottom is always the lowest ground. While it follows, the top only rises: the picture stands still in level
/// flight and doesn't breathe with every gust.
class SideRange {
public:
    static constexpr double Step = 1.5;
    static constexpr double HighestMetres = 121920.0;
    static constexpr double LeastMetres = 20.0; ///< Above the lowest ground.
    static constexpr double OwnMarginMetres = 300.0;

    /// Metres. What nobody knows is no number.
    struct Heights {
        double lowestGround = 0.0;
        double highestGround = 0.0;
        double highestCourse = std::numeric_limits<double>::quiet_NaN();
        double own = std::numeric_limits<double>::quiet_NaN();
    };

    /// Every frame.
    void update(const Heights& heights);
    /// More of the sky, or less of it; the range follows no longer.
    void widen() { choose(top_ * Step); }
    void narrow() { choose(top_ / Step); }
    void choose(double topMetres);
    /// Follows from now on, and forgets how high it was.
    void center();

    double getTop() const { return top_; }
    bool isFollowing() const { return following_; }

private:
    void follow(const Heights& heights);
    void limit(double lowestGround);

    double top_ = 0.0;
    bool following_ = true;
};

/// Two fingers on a side view: the distance between them sets the top of the range.
class SidePinch {
public:
    /// A finger came down, moved or left. True when the range changed: then getTop() is the new one.
    bool down(unsigned id, double x, double y, double top);
    bool moved(unsigned id, double x, double y);
    void up(unsigned id);
    double getTop() const { return top_; }
    bool isActive() const { return fingers_[0].isDown && fingers_[1].isDown; }

private:
    struct Finger {
        bool isDown = false;
        unsigned id = 0;
        double x = 0.0, y = 0.0;
    };
    Finger* find(unsigned id);
    double distance() const;

    Finger fingers_[2];
    double startDistance_ = 0.0;
    double startTop_ = 0.0;
    double top_ = 0.0;
};

} // namespace skyvane
