#include "sensors/simulators/XPlaneTraffic.h"

#include "chart/geodesy/Angles.h"
#include "core/text/Numbers.h"
#include "sensors/records/Traffic_Data.h"
#include "sensors/simulators/PlausibleRange.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr double bearingBlurSeconds = 2.0;
constexpr double bearingMinimalDeltaSeconds = 0.001;
constexpr PlausibleRange altitudeFeet{-100000.0, 1000000.0};

/// How many aircraft stand before the first 0.
size_t countTargets(const float* values) {
    return static_cast<size_t>(std::find(values, values + XPlaneTraffic::SlotCount, 0.0f) - values);
}

bool areTargetsPlausible(const XPlaneTraffic::Values& values, const PlausibleRange& range) {
    return std::all_of(values.begin(), values.begin() + static_cast<long>(countTargets(values.data())),
                       [&](float value) { return range.holds(value); });
}

} // namespace

void reallocTraffic(Traffic_Data* traffic, const float* values) {
    const size_t count = std::min<size_t>(countTargets(values) + 1, XPlaneTraffic::SlotCount);
    if (traffic->elements.size() == count)
        return;
    traffic->elements.clear();
    for (uint32_t slot = 0; slot < count; ++slot) {
        auto element = std::make_unique<TrafficElement>();
        element->icaoAddress = slot;
        traffic->elements.emplace(slot, std::move(element));
    }
}

XPlaneTraffic::XPlaneTraffic() {
    for (int i = 0; i < SlotCount; ++i)
        slots_.push_back({{}, {0.0, 0.0, nullptr, nullptr, bearingMinimalDeltaSeconds, bearingBlurSeconds, true}});
    forget();
}

void XPlaneTraffic::forget() {
    for (Slot& slot : slots_) {
        slot.positions = {};
        clearSamples(slot.bearings);
    }
}

bool XPlaneTraffic::takeLatitudes(const Values& values, double now, Traffic_Data& traffic) {
    if (!areTargetsPlausible(values, Plausible::latitudeDegrees))
        return false;
    reallocTraffic(&traffic, values.data());
    for (uint32_t i = 0; i < countTargets(values.data()); ++i) {
        traffic.elements[i]->latitude = values[i];
        slots_[i].positions.OnNewLatitude(values[i]);
        hlp_calcTrafficHeading(i, now, traffic);
    }
    return true;
}

bool XPlaneTraffic::takeLongitudes(const Values& values, double now, Traffic_Data& traffic) {
    if (!areTargetsPlausible(values, Plausible::longitudeDegrees))
        return false;
    reallocTraffic(&traffic, values.data());
    for (uint32_t i = 0; i < countTargets(values.data()); ++i) {
        traffic.elements[i]->longitude = values[i];
        slots_[i].positions.OnNewLongitude(values[i]);
        hlp_calcTrafficHeading(i, now, traffic);
    }
    return true;
}

bool XPlaneTraffic::takeAltitudes(const Values& values, Traffic_Data& traffic) {
    if (!areTargetsPlausible(values, altitudeFeet))
        return false;
    reallocTraffic(&traffic, values.data());
    for (uint32_t i = 0; i < countTargets(values.data()); ++i)
        traffic.elements[i]->altitude = roundHalfAway(values[i]);
    return true;
}

void XPlaneTraffic::hlp_calcTrafficHeading(size_t slot, double now, Traffic_Data& traffic) {
    double bearingDegrees;
    Slot& target = slots_[slot];
    if (!target.positions.calculateHeading(bearingDegrees))
        return;
    target.bearings.addSample(bearingDegrees, now);
    traffic.elements[static_cast<uint32_t>(slot)]->track =
        static_cast<float>(Angle0to360(target.bearings.calcLastValueBlured()));
}

} // namespace skyvane
