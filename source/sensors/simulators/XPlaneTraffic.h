#pragma once

#include "sensors/simulators/SimulatorSamples.h"
#include "sensors/simulators/XPlaneDatagram.h"
#include "sensors/simulators/XPlanePositionStack.h"

#include <vector>

namespace skyvane {

class Traffic_Data;

/// Forms X-Plane's groups of latitudes, longitudes and altitudes of up to eight aircraft into traffic.
///
/// Slot i is the aircraft at place i of the groups, and the key of its element. A value of 0 ends a group. A group with
/// an implausible value changes nothing.
class XPlaneTraffic {
public:
    using Values = std::array<float, 8>;
    static constexpr int SlotCount = 8;

    XPlaneTraffic();

    /// Each is false when the group wasn't taken. Degrees and feet; now in Secs().
    bool takeLatitudes(const Values& values, double now, Traffic_Data& traffic);
    bool takeLongitudes(const Values& values, double now, Traffic_Data& traffic);
    bool takeAltitudes(const Values& values, Traffic_Data& traffic);
    /// Forgets where the targets were: what comes next doesn't continue it.
    void forget();

private:
    struct Slot {
        XPlanePositionStack positions;
        SimulatorSamples bearings;
    };

    void hlp_calcTrafficHeading(size_t slot, double now, Traffic_Data& traffic);

    std::vector<Slot> slots_;
};

/// Makes the record hold as many elements as the values name: the place of the first 0 plus one, eight at most. Where
/// the count stays the elements stay; otherwise all are made anew, numbered from 0.
void reallocTraffic(Traffic_Data* traffic, const float* values);

} // namespace skyvane
