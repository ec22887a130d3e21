#include "FiniteScalars.h"
#include "core/time/Time.h"
#include "sensors/SensorManager.h"
#include "sensors/StandardDataFactories.h"
#include "sensors/simulators/XPlaneRecords.h"
#include "sensors/simulators/XPlaneSensorFactory.h"

#include <cstdint>

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
    requireFiniteScalars([](ISensorData::Type type) { return records.get(type); });
    return 0;
}
