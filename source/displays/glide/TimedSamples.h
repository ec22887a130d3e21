#pragma once

#include <cstddef>
#include <vector>

namespace skyvane {

/// A value's samples of the last so many milliseconds, oldest first. Its room is taken once: adding allocates nothing.
///
/// Times are MilliSecs(), which may wrap; a clock that went back empties it.
class TimedSamples {
public:
    static constexpr unsigned longestSpan = 3600000;

    /// What is older than the span falls out; a sample that comes within the period after the last one is left out.
    /// The span is brought into one period to an hour, the period is at least 1 ms.
    TimedSamples(unsigned spanMilliseconds, unsigned periodMilliseconds);

    void add(double value, unsigned timeMilliseconds);
    void clear() { count_ = 0; }
    bool isEmpty() const { return count_ == 0; }
    /// Of the newest; not for an empty one.
    unsigned newestTime() const { return at(count_ - 1).time; }

    /// 0 for none.
    double mean() const;
    /// The integral by the trapezoid rule over the time that the samples cover; of a single one its value, 0 for none.
    double meanOverTime() const;

    /// Adds, and gives the mean.
    double updateAverage(double value, unsigned timeMilliseconds) {
        add(value, timeMilliseconds);
        return mean();
    }

private:
    struct Sample {
        double value;
        unsigned time;
    };

    const Sample& at(size_t index) const { return ring_[(first_ + index) % ring_.size()]; }

    unsigned span_;
    unsigned period_;
    std::vector<Sample> ring_;
    size_t first_ = 0;
    size_t count_ = 0;
};

} // namespace skyvane
