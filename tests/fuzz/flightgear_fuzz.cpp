#include "FiniteScalars.h"
#include "core/time/Time.h"
#include "sensors/simulators/FlightGearData.h"
#include "sensors/simulators/FlightGearRecords.h"

#include <cstdint>

using namespace skyvane;

/// Any bytes as a datagram of FlightGear; no record may ever hold a number that isn't finite.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t length) {
    static ManualClock clock;
    static FlightGearRecords records;
    setClock(&clock);
    FlightGearData data;
    if (!data.parse(bytes, length))
        return 0;
    clock.advance(0.033);
    records.take(data, MilliSecs());
    requireFiniteScalars([](ISensorData::Type type) { return records.get(type); });
    return 0;
}
