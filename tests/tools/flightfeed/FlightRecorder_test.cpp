#include "flightfeed/command/FlightRecorder.h"

#include "sensors/TemporaryFolder.h"
#include "sensors/log/LogFile.h"
#include "sensors/records/Position_Data.h"
#include "tools/flightfeed/FlownCard.h"

#include <cmath>
#include <iterator>
#include <map>

namespace skyvane {
namespace {

FlightCard shortCard() {
    FlightCard card;
    parseCard(cardText("short.card"), card);
    return card;
}

std::string bytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

TEST(FlightRecorder, WritesALogThatThePlayerReads) {
    const TemporaryFolder folder;
    ScriptedFlight flight(shortCard());
    ASSERT_TRUE(recordFlight(flight, folder.path("a.dat"), 10.0, 0.0, nullptr));
    LogFile log(folder.path("a.dat"));
    const auto& samples = log.index().samples;
    ScriptedFlight again(shortCard());
    std::map<int, int> records;
    size_t sample = 0;
    do {
        const FlightState& state = again.state();
        const auto timeMs = static_cast<uint32_t>(std::llround(state.timeSeconds * 1000.0));
        for (; sample < samples.size() && samples[sample].timeMs == timeMs; ++sample) {
            LogFile::Record record;
            ASSERT_TRUE(log.read(sample, record));
            ++records[record.type];
            if (record.type != ISensorData::Position)
                continue;
            Position_Data position;
            position.deserialize(const_cast<uint8_t*>(record.form), static_cast<int>(record.length));
            EXPECT_EQ(position.latitude, state.latitudeDegrees);
            EXPECT_EQ(position.timeStamp, timeMs);
        }
    } while (again.advance(0.1));
    EXPECT_EQ(sample, samples.size()) << "every record stands at a state of the flight";
    for (const ISensorData::Type type : {ISensorData::GPS, ISensorData::Attitude, ISensorData::Traffic})
        EXPECT_GT(records[type], 3000) << type;
    EXPECT_GT(records[ISensorData::Localizer], 100) << "on final";
    EXPECT_LT(records[ISensorData::Localizer], records[ISensorData::GPS]) << "and not where no beam reaches";
}

TEST(FlightRecorder, GivesTheSameBytesEachTimeAndSaysWhenItCant) {
    const TemporaryFolder folder;
    for (const char* name : {"a.dat", "b.dat"}) {
        ScriptedFlight flight(shortCard());
        ASSERT_TRUE(recordFlight(flight, folder.path(name), 5.0, 60.0, nullptr));
    }
    EXPECT_EQ(bytesOf(folder.path("a.dat")), bytesOf(folder.path("b.dat")));
    ScriptedFlight flight(shortCard());
    EXPECT_FALSE(recordFlight(flight, folder.path("none/a.dat"), 5.0, 60.0, nullptr));
}

} // namespace
} // namespace skyvane
