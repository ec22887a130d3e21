#include "FiniteScalars.h"
#include "core/time/Time.h"
#include "sensors/SensorManager.h"
#include "sensors/StandardDataFactories.h"
#include "sensors/udp/UDPSensorFactory.h"

#include <cstdint>
#include <cstdio>
#include <vector>

using namespace skyvane;

/// Any bytes as a datagram of another program, and again with every checksum made right, so that the records are
/// reached; no record may ever hold a number that isn't finite.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t length) {
    static SensorManager manager(nullptr);
    static ManualClock clock;
    static const bool ready =
        (addStandardDataFactories(manager), setClock(&clock), std::freopen("/dev/null", "w", stdout) != nullptr);
    static UDPSensor sensor(&manager, UDPSensorOptions(), UDPSensorFactory(&manager, nullptr).getSupportedDataTypes());
    if (!ready)
        return 0;
    sensor.OnDatagram(bytes, length);
    std::vector<uint8_t> right(bytes, bytes + length);
    for (size_t i = 0; i < right.size(); ++i) {
        SDatPacket packet;
        if (packet.read(right.data() + i, right.size() - i))
            packet.write(right.data() + i);
    }
    clock.advance(0.036);
    sensor.OnDatagram(right.data(), right.size());
    requireFiniteScalars([](ISensorData::Type type) { return sensor.getData(type); });
    return 0;
}
