#include "core/time/Time.h"
#include "sensors/SensorManager.h"
#include "sensors/StandardDataFactories.h"
#include "sensors/log/LogFileSensor.h"
#include "support/QuietHost.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

using namespace skyvane;

/// Any bytes as a log: it is indexed, opened, played, looped, sought in. The play position stays a fraction.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t length) {
    static QuietHost host;
    static SensorManager manager(&host);
    static ManualClock clock;
    static const std::string path = "/tmp/skyvane-log-fuzz-" + std::to_string(::getpid());
    static const bool ready =
        (addStandardDataFactories(manager), setClock(&clock), std::freopen("/dev/null", "w", stdout) != nullptr);
    std::FILE* file = ready ? std::fopen(path.c_str(), "wb") : nullptr;
    if (!file)
        return 0;
    std::fwrite(bytes, 1, length, file);
    std::fclose(file);
    manager.unload();
    LogFileSensor sensor(path, &manager, ISensor::GOOD);
    manager.setPlaybackLoop(true);
    for (int frame = 0; frame < 40; ++frame) {
        manager.setPlaybackSpeed(static_cast<float>(frame * frame));
        clock.advance(0.036);
        if (frame % 8 == 7)
            sensor.setPlayPosition(static_cast<float>(frame) / 40.0f);
        sensor.Update();
        for (int type = 0; type < ISensorData::TypeCount; ++type)
            sensor.getData(static_cast<ISensorData::Type>(type));
        if (!(sensor.getPlayPosition() >= 0.0f && sensor.getPlayPosition() <= 1.0f))
            std::abort();
    }
    std::remove(path.c_str());
    return 0;
}
