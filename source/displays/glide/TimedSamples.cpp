#include "displays/glide/TimedSamples.h"

#include <algorithm>

namespace skyvane {

TimedSamples::TimedSamples(unsigned spanMilliseconds, unsigned periodMilliseconds)
    : period_(std::clamp(periodMilliseconds, 1u, longestSpan)) {
    span_ = std::clamp(spanMilliseconds, period_, longestSpan);
    ring_.resize(span_ / period_ + 1);
}

void TimedSamples::add(double value, unsigned timeMilliseconds) {
    if (count_ > 0 && timeMilliseconds - newestTime() > span_) // a long pause, or a clock that went back
        clear();
    while (count_ > 0 && timeMilliseconds - at(0).time > span_) {
        first_ = (first_ + 1) % ring_.size();
        --count_;
    }
    if (count_ > 0 && timeMilliseconds - newestTime() < period_)
        return;
    // Those that are left span at most the span and stand at least a period apart: there is room.
    ring_[(first_ + count_) % ring_.size()] = {value, timeMilliseconds};
    ++count_;
}

double TimedSamples::mean() const {
    double sum = 0.0;
    for (size_t i = 0; i < count_; ++i)
        sum += at(i).value;
    return count_ > 0 ? sum / static_cast<double>(count_) : 0.0;
}

double TimedSamples::meanOverTime() const {
    if (count_ < 2)
        return mean();
    double sum = 0.0;
    for (size_t i = 1; i < count_; ++i)
        sum += (at(i - 1).value + at(i).value) / 2.0 * (at(i).time - at(i - 1).time);
    return sum / (newestTime() - at(0).time);
}

} // namespace skyvane
