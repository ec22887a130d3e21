#include "flightfeed/flight/SmoothFollower.h"

#include <algorithm>

namespace skyvane {

void SmoothFollower::reset(double value, double rate) {
    value_ = value;
    rate_ = rate;
}

void SmoothFollower::follow(double target, double seconds) {
    const double wanted = std::clamp(0.5 * frequency_ * (target - value_), -greatestRate_, greatestRate_);
    const double before = rate_;
    rate_ += std::min(1.0, 2.0 * frequency_ * seconds) * (wanted - rate_);
    value_ += 0.5 * (before + rate_) * seconds;
}

} // namespace skyvane
