#pragma once

#include "sensors/SampleList.h"

namespace skyvane {

/// Samples of one number over Secs().
using SimulatorSamples = SampleList<double, double>;

/// An empty list: no sample that nobody measured blends into the first values.
inline void clearSamples(SimulatorSamples& samples) {
    while (samples.count() > 0)
        samples.popLastSample();
}

} // namespace skyvane
