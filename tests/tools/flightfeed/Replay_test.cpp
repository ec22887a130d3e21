#include "flightfeed/command/Feed.h"
#include "flightfeed/flight/HeldState.h"
#include "flightfeed/replay/CsvFlight.h"
#include "flightfeed/replay/DatagramRecording.h"
#include "flightfeed/replay/GzipFile.h"
#include "flightfeed/send/FlightGearSender.h"
#include "tools/flightfeed/ProjectFile.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <gmock/gmock.h>

using namespace skyvane;
using ::testing::HasSubstr;

namespace {

std::string table() {
    std::string text, error;
    EXPECT_TRUE(readMaybeGzip(projectPath("tests/tools/flightfeed/data/tiny-flight.csv.gz"), text, error)) << error;
    return text;
}

std::string errorOf(const std::string& text) {
    std::string error;
    EXPECT_EQ(CsvFlight::read(text, error), nullptr);
    return error;
}

// A recording of that many datagrams, a tenth of a second apart.
std::string recording(int count) {
    std::string out;
    for (int i = 0; i < count; ++i) {
        const double arrival = 5.0 + 0.1 * i;
        out.append(reinterpret_cast<const char*>(&arrival), 8);
        out.append(168, static_cast<char>('a' + i));
    }
    return out;
}

struct Sent : IDatagramSink, IPacer {
    void send(const void* bytes, size_t count) override {
        datagrams.emplace_back(static_cast<const char*>(bytes), count);
        times.push_back(now);
    }
    void waitUntil(double flightSeconds) override { now = flightSeconds; }

    double now = -1.0;
    std::vector<std::string> datagrams;
    std::vector<double> times;
};

const char* dataFolder() {
    return std::getenv("SKYVANE_DATA");
}

std::string realRecording(const std::string& name) {
    std::string content, error;
    EXPECT_TRUE(readMaybeGzip(std::string(dataFolder()) + "/flights/" + name, content, error)) << error;
    return content;
}

} // namespace

TEST(CsvFlight, BlendsBetweenRows) {
    std::string error;
    const auto flight = CsvFlight::read(table(), error);
    ASSERT_TRUE(flight) << error;
    EXPECT_DOUBLE_EQ(flight->lengthSeconds(), 3.0);
    EXPECT_DOUBLE_EQ(flight->state().latitudeDegrees, 42.0);
    EXPECT_DOUBLE_EQ(flight->state().indicatedAirspeedKnots, 100.0);
    ASSERT_TRUE(flight->advance(0.25));
    const FlightState& s = flight->state();
    EXPECT_NEAR(s.latitudeDegrees, 42.000125, 1e-12);
    EXPECT_NEAR(s.altitudeMetres, 1002.5 * 0.3048, 1e-9);
    EXPECT_NEAR(s.rollDegrees, 0.125 * 180.0 / M_PI, 1e-9);
    EXPECT_NEAR(s.verticalSpeedMetresPerSecond, 9.0 * 0.3048, 1e-9);
    EXPECT_NEAR(s.groundSpeedKnots, std::hypot(160.5, 10.5) * 0.3048 / 0.514444444, 1e-9);
    EXPECT_NEAR(s.specificForceDown, -32.0 * 0.3048, 1e-9);
    EXPECT_NEAR(s.pressureMillibars, 977.08, 0.05);
    ASSERT_TRUE(flight->advance(1.75));
    // Half-way from 6.3 to 0.05 + a whole turn, not back round the other side.
    EXPECT_NEAR(flight->state().headingDegrees, ((6.3 + 0.05 + 2.0 * M_PI) / 2.0 - 2.0 * M_PI) * 180.0 / M_PI, 1e-6);
    EXPECT_NEAR(flight->state().altitudeMetres, 1020.0 * 0.3048, 1e-9);
    EXPECT_TRUE(flight->advance(1.0));
    EXPECT_FALSE(flight->advance(0.1));
    EXPECT_NEAR(flight->state().altitudeMetres, 1030.0 * 0.3048, 1e-9);
    flight->restart();
    EXPECT_DOUBLE_EQ(flight->state().latitudeDegrees, 42.0);
}

TEST(CsvFlight, TellsWhatIsWrong) {
    const std::string good = table();
    const auto with = [&](const std::string& from, const std::string& to) {
        std::string text = good;
        const size_t at = text.find(from);
        EXPECT_NE(at, std::string::npos);
        return text.replace(at, from.size(), to);
    };
    EXPECT_THAT(errorOf(with("psi-rad", "psi-deg")), HasSubstr("no column \"psi-rad\""));
    EXPECT_THAT(errorOf(with("1010", "abc")), HasSubstr("line 3"));
    EXPECT_THAT(errorOf(with("1010", "nan")), HasSubstr("line 3"));
    EXPECT_THAT(errorOf(with("1010", "12 34")), HasSubstr("line 3"));
    EXPECT_THAT(errorOf(with("42.0005", "97")), HasSubstr("line 3"));
    EXPECT_THAT(errorOf(with(",1,11,", ",1,10,")), HasSubstr("line 3: time doesn't grow"));
    EXPECT_THAT(errorOf(good.substr(0, good.find("-12"))), HasSubstr("line 3"));
    EXPECT_THAT(errorOf(good.substr(0, good.find("102,"))), HasSubstr("fewer than two rows"));
    EXPECT_THAT(errorOf(""), HasSubstr("no column"));
}

TEST(GzipFile, TellsDamage) {
    std::string content, error;
    EXPECT_FALSE(readMaybeGzip("/no/such/file", content, error));
    EXPECT_THAT(error, HasSubstr("can't open"));
    const std::string whole = projectFile("tests/tools/flightfeed/data/tiny-flight.csv.gz");
    const std::string path = ::testing::TempDir() + "flightfeed-cut.csv.gz";
    std::ofstream(path, std::ios::binary) << whole.substr(0, whole.size() / 2);
    EXPECT_FALSE(readMaybeGzip(path, content, error));
    EXPECT_THAT(error, HasSubstr("damaged"));
}

TEST(DatagramRecording, IsSentAsItIsAtItsTimes) {
    DatagramRecording recorded;
    std::string error;
    ASSERT_TRUE(recorded.read(recording(4), error)) << error;
    Sent sent;
    feedRecording(recorded, sent, nullptr, sent, {});
    EXPECT_THAT(sent.datagrams, ::testing::ElementsAre(std::string(168, 'a'), std::string(168, 'b'),
                                                       std::string(168, 'c'), std::string(168, 'd')));
    EXPECT_NEAR(sent.times.at(3), 0.3, 1e-9);
    Sent part;
    FeedSettings settings;
    settings.fromSeconds = 0.15;
    settings.durationSeconds = 0.25;
    settings.loop = true;
    feedRecording(recorded, part, nullptr, part, settings);
    EXPECT_THAT(part.datagrams,
                ::testing::ElementsAre(std::string(168, 'c'), std::string(168, 'd'), std::string(168, 'a')));
}

TEST(DatagramRecording, RefusesWhatIsCutEmptyOrOutOfOrder) {
    DatagramRecording recorded;
    std::string error;
    EXPECT_FALSE(recorded.read("", error));
    EXPECT_FALSE(recorded.read(recording(2).substr(1), error));
    EXPECT_THAT(error, HasSubstr("176 bytes"));
    std::string swapped = recording(2);
    swapped = swapped.substr(176) + swapped.substr(0, 176);
    EXPECT_FALSE(recorded.read(swapped, error));
    EXPECT_THAT(error, HasSubstr("record 1"));
    EXPECT_EQ(recorded.count(), 0u);
    const double endless = INFINITY;
    std::memcpy(&swapped[0], &endless, 8);
    EXPECT_FALSE(recorded.read(swapped, error));
}

TEST(DatagramRecording, ReadsBackWhatTheSenderWrote) {
    HeldState held;
    std::string error;
    ASSERT_TRUE(held.set("pitch=-7,roll=33,heading=271,altitude_ft=4321,ias_kt=97,vs_fpm=-400,ball=2", error));
    Sent sent;
    FlightGearSender().send(held.state(), sent);
    const FlightState back = readFlightGearDatagram(reinterpret_cast<const uint8_t*>(sent.datagrams.at(0).data()));
    const FlightState& out = held.state();
    EXPECT_NEAR(back.pitchDegrees, -7.0, 1e-9);
    EXPECT_NEAR(back.rollDegrees, 33.0, 1e-9);
    EXPECT_NEAR(back.headingDegrees, 271.0, 1e-9);
    EXPECT_EQ(back.altitudeMetres, out.altitudeMetres);
    EXPECT_EQ(back.groundSpeedKnots, out.groundSpeedKnots);
    EXPECT_EQ(back.utcSeconds, out.utcSeconds);
    EXPECT_NEAR(ballAngleDegrees(back), 2.0, 1e-9);
    EXPECT_EQ(back.pressureMillibars, out.pressureMillibars);
}

TEST(RealRecordings, TableOfAFlightIsReadAndStaysSane) {
    if (!dataFolder())
        GTEST_SKIP() << "SKYVANE_DATA isn't set";
    std::string error;
    const auto flight = CsvFlight::read(realRecording("pyrenees-c172-25hz.csv.gz"), error);
    ASSERT_TRUE(flight) << error;
    EXPECT_NEAR(flight->lengthSeconds(), 1500.0, 2.0);
    EXPECT_NEAR(flight->state().latitudeDegrees, 42.336, 0.001);
    double highest = 0.0, steepest = 0.0, before = flight->state().altitudeMetres;
    while (flight->advance(1.0 / 30.0)) {
        const FlightState& s = flight->state();
        ASSERT_NEAR((s.altitudeMetres - before) * 30.0, s.verticalSpeedMetresPerSecond, 0.5) << s.timeSeconds;
        before = s.altitudeMetres;
        highest = std::max(highest, s.altitudeMetres);
        steepest = std::max(steepest, std::abs(s.rollDegrees));
    }
    EXPECT_NEAR(highest / 0.3048, 11000.0, 500.0);
    EXPECT_NEAR(steepest, 30.0, 6.0);
}

TEST(RealRecordings, FlightGearsDatagramsHaveOurLayout) {
    if (!dataFolder())
        GTEST_SKIP() << "SKYVANE_DATA isn't set";
    DatagramRecording recorded;
    std::string error;
    ASSERT_TRUE(recorded.read(realRecording("flightgear-c172p-30hz.bin.gz"), error)) << error;
    ASSERT_EQ(recorded.count(), 17906u);
    double down = 0.0, turnAndBank = 0.0;
    for (size_t i = 1000; i < recorded.count(); ++i) {
        const FlightState s = readFlightGearDatagram(recorded.datagram(i));
        ASSERT_NEAR(s.latitudeDegrees, 21.3, 0.3);
        ASSERT_LT(s.indicatedAirspeedKnots, 140.0);
        down += s.specificForceDown;
        turnAndBank += s.yawRateRadiansPerSecond * s.rollDegrees;
    }
    EXPECT_NEAR(down / 16906.0, -9.9, 0.4) << "the wing carries the aircraft";
    EXPECT_GT(turnAndBank, 0.0) << "a bank to the right turns to the right";
}
