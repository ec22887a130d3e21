#pragma once

namespace skyvane {

/// Where the camera stands around the aircraft, and how fingers move it. Distances are metres, pixels those of a panel.
///
/// A distance at or below `firstPersonMetres` is the pilot's seat.
class OrbitControl {
public:
    static constexpr double firstPersonMetres = 30.0;
    static constexpr double farthestMetres = 5000.0;
    static constexpr double lowestDegrees = -5.0, highestDegrees = 85.0;

    /// Back to the pilot's seat, the chase camera behind and above.
    void reset() { *this = OrbitControl(); }
    /// A finger went this far, in parts of the panel's height. It turns the chase camera alone.
    void drag(double right, double down);
    /// Two fingers or a wheel: more than 1 goes nearer. From the seat the way out begins at the chase distance.
    void zoom(double factor);

    bool isFirstPerson() const { return distanceMetres_ <= firstPersonMetres; }
    /// From the aircraft; never less than the least chase distance, so that a chase view without attitude shows it.
    double getChaseMetres() const;
    /// Degrees clockwise, from behind the aircraft.
    double getYawDegrees() const { return yawDegrees_; }
    /// Above the horizon.
    double getHeightDegrees() const { return heightDegrees_; }

private:
    double distanceMetres_ = 0.0;
    double yawDegrees_ = 0.0;
    double heightDegrees_ = 15.0;
};

/// Tells taps from drags: a press and a release within 2 % of the panel's height are a tap.
class TapOrDrag {
public:
    void press(int x, int y);
    /// How far to go on, in pixels since the last move; nothing while it may still become a tap.
    bool move(int x, int y, int panelHeight, int& right, int& down);
    /// True for a tap.
    bool release();
    bool isDown() const { return down_; }
    void cancel() { down_ = false; }

private:
    static constexpr double tapShare = 0.02;

    bool down_ = false;
    bool dragging_ = false;
    int startX_ = 0, startY_ = 0;
    int lastX_ = 0, lastY_ = 0;
};

/// Two fingers that move apart or together.
class PinchTracker {
public:
    enum class Phase { Down, Move, Up };

    /// True when the pinch changed: `factor` above 1 when the fingers moved apart since the last time.
    bool take(unsigned id, Phase phase, int x, int y, double& factor);

private:
    struct Finger {
        bool down = false;
        unsigned id = 0;
        int x = 0, y = 0;
    };
    double getDistance() const;

    Finger fingers_[2];
    double lastDistance_ = 0.0;
};

} // namespace skyvane
