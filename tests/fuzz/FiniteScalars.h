#pragma once

#include "sensors/records/ScalarData.h"

#include <cmath>
#include <cstdlib>

namespace skyvane {

/// Whatever came over the network: a scalar record is a finite number. `recordOf` gives the record of a type, or null.
template <class RecordOf>
void requireFiniteScalars(RecordOf recordOf) {
    for (int type = 0; type < ISensorData::TypeCount; ++type) {
        const auto* scalar = dynamic_cast<ScalarData*>(recordOf(static_cast<ISensorData::Type>(type)));
        if (scalar && !std::isfinite(scalar->value))
            std::abort();
    }
}

} // namespace skyvane
