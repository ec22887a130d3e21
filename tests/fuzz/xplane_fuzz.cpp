#include "core/time/Time.h"
#include "sensors/SensorManager.h"
#include "sensors/StandardDataFactories.h"
#include "sensors/records/ScalarData.h"
#include "sensors/simulators/XPlaneRecords.h"
#include "sensors/simulators/XPlaneSensorFactory.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

using namespace skyvane;

/// Any bytes as a datagram of X-Plane, twice, so that positions and rates have a past; no record may
/// ever hold a number that isn't finite.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t length) {
    static SensorManager manager(nullptr);
    static ManualClock clock;
    static const bool ready = (addStandardDataFactories(manager), setClock(&clock), true);
    static XPlaneRecords records(&manager, XPlaneSensorFactory(&manager).getSupportedDataTypes());
    for (int i = 0; ready && i < 2; ++i) {
        clock.advance(0.033);
        records.take(bytes, length, MilliSecs());
    }
    for (int type = 0; type < ISensorData::TypeCount; ++type) {
        const auto* scalar = dynamic_cast<ScalarData*>(records.get(static_cast<ISensorData::Type>(type)));
        if (scalar && !std::isfinite(scalar->value))
            std::abort();
    }
    return 0;
}
