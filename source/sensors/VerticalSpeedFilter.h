#pragma once

namespace skyvane {

/// Smooths the vertical speed exponentially, with a half-life of two seconds.
class VerticalSpeedFilter {
public:
    /// Metres per second.
    double value() const { return value_; }

    /// Takes the sample in when its time stamp isn't that of the last one. `now` in seconds. A value that isn't finite
    /// is passed over.
    void update(double climbMetresPerSecond, unsigned timeStamp, double now);

private:
    double value_ = 0.0;
    double time_ = 0.0;
    bool initialised_ = false;
    unsigned lastTimeStamp_ = 0;
};

} // namespace skyvane
