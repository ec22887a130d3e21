#include "sensors/VerticalSpeedFilter.h"

#include <cmath>

namespace skyvane {
namespace {

/// ln 2 / 2, per second.
constexpr double DecayRate = 0.34657359027997264;
constexpr double MinimalStepSeconds = 0.0001;
/// What is beyond is a fault on the way: one such sample would keep the needle at its stop for minutes.
constexpr double LargestMetresPerSecond = 1000.0;

} // namespace

void VerticalSpeedFilter::update(double climbMetresPerSecond, unsigned timeStamp, double now) {
    if (timeStamp == lastTimeStamp_)
        return;
    lastTimeStamp_ = timeStamp;
    if (!(std::abs(climbMetresPerSecond) <= LargestMetresPerSecond))
        return;
    if (!initialised_) {
        initialised_ = true;
        value_ = climbMetresPerSecond;
        time_ = now;
        return;
    }
    const double elapsed = now - time_;
    if (elapsed > MinimalStepSeconds) {
        const double k = std::exp(-elapsed * DecayRate);
        value_ = k * value_ + (1.0 - k) * climbMetresPerSecond;
        time_ = now;
    }
}

} // namespace skyvane
