// A log of six hours: opening it against reading the file, and how long a seek takes.
#include "Bench.h"
#include "support/QuietHost.h"

#include "core/time/Time.h"
#include "sensors/SensorManager.h"
#include "sensors/StandardDataFactories.h"
#include "sensors/log/LogFile.h"
#include "sensors/log/LogFileSensor.h"
#include "sensors/log/LogWriter.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>
#include <unistd.h>

namespace skyvane {

namespace {

constexpr unsigned FrameMs = 36;
constexpr unsigned SixHoursMs = 6 * 3600 * 1000;
constexpr unsigned SmokeMs = 60 * 1000;

/// A log as a simulator's flight leaves it: twelve records in each frame. It goes with the object.
class LongLog {
public:
    explicit LongLog(unsigned lengthMs)
        : path_(std::filesystem::temp_directory_path() / ("skyvane-bench-" + std::to_string(::getpid()) + ".dat")) {
        QuietHost host;
        SensorManager sensors(&host);
        addStandardDataFactories(sensors);
        std::vector<std::unique_ptr<ISensorData>> records;
        for (const int type : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 13})
            records.push_back(sensors.createSensorData(static_cast<ISensorData::Type>(type)));
        LogWriter writer(path_);
        for (unsigned timeMs = 0; timeMs < lengthMs; timeMs += FrameMs) {
            for (const auto& record : records) {
                int length = 0;
                const void* form = record->serialize(&length);
                writer.add(timeMs, record->getType(), form, static_cast<uint32_t>(length));
            }
            writer.flush();
        }
        writer.close();
        bytes_ = std::filesystem::file_size(path_);
    }
    ~LongLog() { std::filesystem::remove(path_); }
    LongLog(const LongLog&) = delete;
    LongLog& operator=(const LongLog&) = delete;

    std::string path() const { return path_; }
    /// As a crash leaves it.
    void dropIndex() const {
        std::filesystem::resize_file(path_, bytes_);
        std::fstream file(path_, std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(4);
        file.write("\0\0\0\0", 4);
    }
    void readPlainly() const {
        std::vector<char> buffer(262144);
        std::ifstream file(path_, std::ios::binary);
        while (file.read(buffer.data(), static_cast<long>(buffer.size())))
            sum_ += buffer[0];
    }

private:
    std::filesystem::path path_;
    uintmax_t bytes_ = 0;
    mutable int sum_ = 0;
};

double logOpen(bool smoke) {
    const LongLog log(smoke ? SmokeMs : SixHoursMs);
    bool empty = false;
    const double ratio = ratioOfMedians(
        smoke ? 1 : 5,
        [&] {
            log.dropIndex();
            return secondsOf([&] { empty = LogFile(log.path()).index().samples.empty(); });
        },
        [&] {
            log.dropIndex();
            return secondsOf([&] { log.readPlainly(); });
        });
    return empty ? std::nan("") : ratio;
}

/// The longest of many seeks, in frames.
double logSeek(bool smoke) {
    const LongLog log(smoke ? SmokeMs : SixHoursMs);
    QuietHost host;
    SensorManager sensors(&host);
    addStandardDataFactories(sensors);
    sensors.setPlaybackState(SensorManager::PLAYBACK_PAUSE);
    LogFileSensor player(log.path(), &sensors, ISensor::GOOD);
    player.Update();
    std::mt19937 random(5);
    double longest = 0.0;
    int arrived = 0;
    for (int i = 0; i < (smoke ? 20 : 500); ++i) {
        const float place = static_cast<float>(random() % 1000) / 1000.0f;
        longest = std::max(longest, secondsOf([&] {
                               player.setPlayPosition(place);
                               arrived += player.Update() ? 1 : 0;
                           }));
    }
    return arrived > 0 ? longest * 1000.0 / FrameMs : std::nan("");
}

} // namespace

std::vector<Bench> logBenches() {
    return {{"log.open", Bench::Bound::AtMost, 3, logOpen}, {"log.seek-frames", Bench::Bound::AtMost, 1, logSeek}};
}

} // namespace skyvane
