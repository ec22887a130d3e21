#include "FiniteScalars.h"
#include "core/time/Time.h"
#include "sensors/SensorManager.h"
#include "sensors/gdl90/GDL90FrameWriter.h"
#include "sensors/gdl90/GDL90Sensor.h"
#include "sensors/gdl90/GDL90SensorFactory.h"

#include <cstdio>

using namespace skyvane;

/// Any bytes as a datagram, and again as messages with a right check: the first byte of each tells its length. No
/// record may ever hold a number that isn't finite.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t length) {
    static SensorManager manager(nullptr);
    static ManualClock clock;
    static const bool ready = (setClock(&clock), std::freopen("/dev/null", "w", stdout) != nullptr);
    static GDL90SensorFactory factory(&manager, nullptr, nullptr);
    static GDL90Sensor sensor(&factory, &manager, 0, GDL90Flavor::Levil);
    if (!ready)
        return 0;
    clock.advance(0.4);
    sensor.Update();
    sensor.OnDatagram(bytes, length);
    std::vector<uint8_t> right;
    for (size_t i = 0; i < length;) {
        const size_t messageLength = std::min<size_t>(bytes[i], length - i - 1);
        appendGDL90Frame(right, bytes + i + 1, messageLength);
        i += 1 + messageLength;
    }
    clock.advance(0.036);
    sensor.OnDatagram(right.data(), right.size());
    requireFiniteScalars([](ISensorData::Type type) { return sensor.getData(type); });
    return 0;
}
