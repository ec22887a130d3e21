// A GDL 90 receiver: framing, check and parse against a plain table check over the same bytes; and what 200 targets
// cost in a frame.
#include "Bench.h"
#include "support/QuietHost.h"

#include "core/time/Time.h"
#include "sensors/SensorManager.h"
#include "sensors/StandardDataFactories.h"
#include "sensors/gdl90/GDL90FrameWriter.h"
#include "sensors/gdl90/GDL90Sensor.h"
#include "sensors/gdl90/GDL90SensorFactory.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

namespace skyvane {

namespace {

using Bytes = std::vector<uint8_t>;

constexpr int TargetCount = 200;
constexpr double FrameSeconds = 0.036;

/// The table check as the interface's description prints it, one byte after the other.
class PlainCheck {
public:
    PlainCheck() {
        for (unsigned i = 0; i < 256; ++i) {
            unsigned crc = i << 8;
            for (int bit = 0; bit < 8; ++bit)
                crc = (crc << 1) ^ ((crc & 0x8000u) != 0 ? 0x1021u : 0u);
            table_[i] = static_cast<uint16_t>(crc);
        }
    }
    uint16_t run(const Bytes& bytes) const {
        uint16_t crc = 0;
        for (const uint8_t byte : bytes)
            crc = static_cast<uint16_t>(table_[crc >> 8] ^ (crc << 8) ^ byte);
        return crc;
    }

private:
    std::array<uint16_t, 256> table_{};
};

void appendReport(Bytes& stream, uint8_t id, int number, std::mt19937& random) {
    Bytes message(28);
    for (uint8_t& byte : message)
        byte = static_cast<uint8_t>(random());
    message[0] = id;
    message[1] = 0;
    message[2] = 0;
    message[3] = static_cast<uint8_t>(number >> 8);
    message[4] = static_cast<uint8_t>(number);
    std::fill(message.begin() + 19, message.begin() + 27, static_cast<uint8_t>('A'));
    appendGDL90Frame(stream, message.data(), message.size());
}

void appendFilled(Bytes& stream, std::initializer_list<uint8_t> id, size_t length, std::mt19937& random) {
    Bytes message(id);
    while (message.size() < length)
        message.push_back(static_cast<uint8_t>(random()));
    appendGDL90Frame(stream, message.data(), message.size());
}

/// A busy second of a receiver: targets, the own ship, an attitude at 20 Hz and four uplinks.
Bytes busySecond() {
    std::mt19937 random(11);
    Bytes stream;
    appendFilled(stream, {0}, 7, random);
    appendReport(stream, 10, 0, random);
    appendFilled(stream, {11}, 5, random);
    for (int i = 0; i < TargetCount; ++i)
        appendReport(stream, 20, i, random);
    for (int i = 0; i < 20; ++i)
        appendFilled(stream, {0x4C, 0x45, 1, 1}, 24, random);
    for (int i = 0; i < 4; ++i)
        appendFilled(stream, {7}, 436, random);
    return stream;
}

/// Speed over the baseline's.
double gdl90Parse(bool smoke) {
    const Bytes stream = busySecond();
    const PlainCheck plain;
    GDL90Parser parser;
    unsigned sum = 0, messages = 0;
    const int repeats = smoke ? 1 : 200;
    const double ratio = ratioOfMedians(
        smoke ? 1 : 15,
        [&] {
            return secondsOf([&] {
                for (int i = 0; i < repeats; ++i)
                    sum += plain.run(stream);
            });
        },
        [&] {
            return secondsOf([&] {
                for (int i = 0; i < repeats; ++i)
                    for (const uint8_t byte : stream)
                        if (parser.parse(byte)) {
                            parser.reuse(parser.createParsedMessage());
                            ++messages;
                        }
            });
        });
    const auto perStream = static_cast<unsigned>(TargetCount + 27);
    return messages % perStream == 0 && messages > 0 && sum != 1 ? ratio : std::nan("");
}

/// The median over frames of what a frame takes with 200 targets, each told once a second in datagrams of its own and
/// spread over the frames, in milliseconds.
double trafficShare(bool smoke) {
    QuietHost host;
    SensorManager sensors(&host);
    addStandardDataFactories(sensors);
    GDL90SensorFactory factory(&sensors, nullptr, nullptr);
    ManualClock clock;
    setClock(&clock);
    GDL90Sensor sensor(&factory, &sensors, 0, GDL90Flavor::Generic);
    std::mt19937 random(12);
    std::vector<Bytes> reports(TargetCount);
    for (int i = 0; i < TargetCount; ++i)
        appendReport(reports[static_cast<size_t>(i)], 20, i, random);
    std::vector<double> shares;
    double told = 0.0;
    for (int frame = 0; frame < (smoke ? 30 : 2000); ++frame) {
        clock.advance(FrameSeconds);
        told += TargetCount * FrameSeconds;
        shares.push_back(secondsOf([&] {
            sensor.Update();
            for (; told >= 1.0; told -= 1.0) {
                const Bytes& report = reports[random() % TargetCount];
                sensor.OnDatagram(report.data(), report.size());
            }
        }));
    }
    setClock(nullptr);
    const bool isWhole = sensor.getWarning(ISensorData::Traffic) == ISensor::GOOD;
    return isWhole ? median(shares) * 1000.0 : std::nan("");
}

} // namespace

std::vector<Bench> gdl90Benches() {
    return {{"gdl90.parse", Bench::Bound::AtLeast, 0.5, gdl90Parse},
            {"traffic.share-ms", Bench::Bound::AtMost, 1, trafficShare}};
}

} // namespace skyvane
