#pragma once

#include "core/geometry/EngineMath.h"
#include "sensors/SampleRing.h"

namespace skyvane {

/// A sliding window of samples, and what follows from it: a smoothed newest value, and a derivative and an integral
/// that are fed into further lists.
///
/// It keeps three standard deviations of samples, and up to 8192 of them it allocates nothing after its construction.
/// The derivative and integral lists are the caller's and outlive this one; either may be null.
///
///     SampleList<double, double> rates(0.0, now, nullptr, nullptr, 0.001, 1.0, false);
///     SampleList<double, double> headings(heading, now, nullptr, &rates, 0.01, 1.0, true);
///     headings.addSample(heading, now);
///     turnRate = rates.calcLastValueBlured();
///
/// Instantiated for double and vector3d<double> values with double times.
template <class Value, class Time>
class SampleList {
public:
    /// minimalDelta and blur (a standard deviation) are in units of time. An angle list reduces differences to -180 to
    /// 180 degrees.
    SampleList(const Value& initialValue, Time initialTime, SampleList* integralList, SampleList* derivativeList,
               Time minimalDelta, Time blur, bool isAngle);

    /// Drops a sample that isn't finite or that comes too soon after the newest one. A time that goes backwards counts
    /// as a gap of twice that time.
    void addSample(const Value& value, Time time);
    void popLastSample();
    /// The mean of all samples, weighted by a bell curve around the newest time; zero for an empty list. In an angle
    /// list each sample counts as the turn that is nearest to the newest one, so 359 and 1 give 0 and not 180; the
    /// result may lie a little outside the range of the samples. Calculated anew only after a change.
    Value calcLastValueBlured();
    /// The weighted mean of the times that belongs to the value of the last calculation.
    Time lastTimeBlured() const { return blured_.time; }

    int count() const { return samples_.count(); }

private:
    struct Sample {
        Value value{};
        Time time{};
    };

    Value difference(const Value& to, const Value& from) const;
    void feedLists();

    SampleRing<Sample> samples_;
    int maximalCount_;
    SampleList* integralList_;
    SampleList* derivativeList_;
    Time minimalDelta_;
    Time blur_;
    Sample blured_;
    bool dirty_ = true;
    bool isAngle_;
};

extern template class SampleList<double, double>;
extern template class SampleList<irr::core::vector3d<double>, double>;

} // namespace skyvane
