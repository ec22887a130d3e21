#pragma once

namespace skyvane {

/// A quantity that follows its target as a critically damped second-order system, no faster than a greatest rate.
/// Its rate has no jumps, whatever the target does.
class SmoothFollower {
public:
    SmoothFollower(double frequencyPerSecond, double greatestRate)
        : frequency_(frequencyPerSecond), greatestRate_(greatestRate) {}

    void reset(double value, double rate = 0.0);
    void follow(double target, double seconds);

    double value() const { return value_; }
    double rate() const { return rate_; }

private:
    double frequency_;
    double greatestRate_;
    double value_ = 0.0;
    double rate_ = 0.0;
};

} // namespace skyvane
