#include "sensors/SampleList.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/Gauss.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {
namespace {

bool isFinite(double value) {
    return std::isfinite(value);
}

bool isFinite(const irr::core::vector3d<double>& value) {
    return std::isfinite(value.X) && std::isfinite(value.Y) && std::isfinite(value.Z);
}

/// Three standard deviations of samples, as far as an int counts.
int countFor(double blur, double minimalDelta) {
    const double count = 3.0 * blur / minimalDelta;
    if (!(count > 0.0))
        return 0;
    return count < std::numeric_limits<int>::max() ? static_cast<int>(count) : std::numeric_limits<int>::max();
}

/// What a list takes at once; beyond that it grows as it fills.
constexpr size_t mostReserved = 8192;
/// So many standard deviations away a sample's weight is below the last digit of the newest one's.
constexpr double weightlessBlurs = 9.0;

} // namespace

template <class Value, class Time>
SampleList<Value, Time>::SampleList(const Value& initialValue, Time initialTime, SampleList* integralList,
                                    SampleList* derivativeList, Time minimalDelta, Time blur, bool isAngle)
    : maximalCount_(countFor(blur, minimalDelta)), integralList_(integralList), derivativeList_(derivativeList),
      minimalDelta_(minimalDelta), blur_(blur), isAngle_(isAngle) {
    // One more than the maximum stands in the list for a moment.
    samples_.reserve(std::min<size_t>(static_cast<size_t>(maximalCount_), mostReserved) + 1);
    samples_.push({initialValue, initialTime});
}

template <class Value, class Time>
void SampleList<Value, Time>::addSample(const Value& value, Time time) {
    if (!isFinite(value) || !isFinite(time))
        return;
    if (!samples_.empty()) {
        const Time last = samples_.newest().time;
        const Time gap = time < last ? 2 * time : time - last;
        if (!(gap > minimalDelta_))
            return;
    }
    dirty_ = true;
    samples_.push({value, time});
    while (samples_.count() > maximalCount_)
        samples_.popOldest();
    if (samples_.count() >= 2 && samples_.newest(0).time != samples_.newest(1).time)
        feedLists();
}

template <class Value, class Time>
void SampleList<Value, Time>::feedLists() {
    const Sample& now = samples_.newest(0);
    const Sample& before = samples_.newest(1);
    const Time elapsed = now.time - before.time;
    if (derivativeList_)
        derivativeList_->addSample(difference(now.value, before.value) / elapsed, (before.time + now.time) / 2);
    if (integralList_) {
        const Value sum = integralList_->samples_.empty() ? Value() : integralList_->samples_.newest().value;
        integralList_->addSample(sum + (before.value + now.value) * (elapsed * 0.5), now.time);
    }
}

template <class Value, class Time>
void SampleList<Value, Time>::popLastSample() {
    if (samples_.empty())
        return;
    samples_.popNewest();
    dirty_ = true;
}

template <class Value, class Time>
Value SampleList<Value, Time>::calcLastValueBlured() {
    if (!dirty_)
        return blured_.value;
    dirty_ = false;
    blured_ = Sample();
    if (samples_.empty())
        return blured_.value;
    const Sample& newest = samples_.newest();
    Value valueSum{};
    Time timeSum{};
    double weightSum = 0.0;
    for (int i = 0; i < samples_.count(); ++i) {
        const Sample& sample = samples_[i];
        const double age = newest.time - sample.time;
        if (std::abs(age) > weightlessBlurs * blur_)
            continue;
        const double weight = gauss(age, blur_);
        const Value value = isAngle_ ? newest.value + difference(sample.value, newest.value) : sample.value;
        valueSum += value * weight;
        timeSum += sample.time * weight;
        weightSum += weight;
    }
    // Without a blur the newest sample stands alone.
    blured_ = weightSum > 0.0 ? Sample{valueSum / weightSum, timeSum / weightSum} : newest;
    return blured_.value;
}

template <class Value, class Time>
Value SampleList<Value, Time>::difference(const Value& to, const Value& from) const {
    return isAngle_ ? Angle180(to - from) : to - from;
}

template class SampleList<double, double>;
template class SampleList<irr::core::vector3d<double>, double>;

} // namespace skyvane
