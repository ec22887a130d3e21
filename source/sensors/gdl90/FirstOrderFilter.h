#pragma once

#include <algorithm>
#include <cmath>

namespace skyvane {

/// Smooths samples of one number that come at any times: the first is taken as it is, then value = k value + (1 - k)
/// sample with k = exp(-rate dt). Steps shorter than a millisecond count as one.
class FirstOrderFilter {
public:
    /// Per second.
    explicit FirstOrderFilter(double rate) : rate_(rate) {}

    /// Gives the new value; `now` in seconds.
    double add(double sample, double now) {
        const double k = begun_ ? std::exp(-rate_ * std::max(now - time_, ShortestStepSeconds)) : 0.0;
        value_ = k * value_ + (1.0 - k) * sample;
        begun_ = true;
        time_ = now;
        return value_;
    }
    /// The next sample is the first.
    void reset() {
        begun_ = false;
        value_ = 0.0;
    }
    bool hasValue() const { return begun_; }
    double value() const { return value_; }

private:
    static constexpr double ShortestStepSeconds = 0.001;

    double rate_;
    double value_ = 0.0;
    double time_ = 0.0;
    bool begun_ = false;
};

} // namespace skyvane
