#include "flightfeed/flight/Units.h"
#include "flightfeed/send/FlightGearSender.h"
#include "flightfeed/send/XPlaneSender.h"
#include "tools/flightfeed/FlownCard.h"

#include <cmath>
#include <cstring>
#include <gmock/gmock.h>
#include <map>

using namespace skyvane;

namespace {

using Bytes = std::vector<uint8_t>;

class Collector : public IDatagramSink {
public:
    void send(const void* bytes, size_t count) override {
        const auto* begin = static_cast<const uint8_t*>(bytes);
        datagrams.emplace_back(begin, begin + count);
    }
    std::vector<Bytes> datagrams;
};

Bytes sent(IProtocolSender& sender, const FlightState& state) {
    Collector out;
    sender.send(state, out);
    EXPECT_EQ(out.datagrams.size(), 1u);
    return out.datagrams.empty() ? Bytes() : out.datagrams.front();
}

// Numbers whose bytes are easily written by hand.
FlightState plain() {
    FlightState s;
    s.utcSeconds = 1709251198.0; // 2024-02-29 23:59:58
    s.latitudeDegrees = 42.0;
    s.longitudeDegrees = -28.5;
    s.altitudeMetres = 304.8;
    s.verticalSpeedMetresPerSecond = 2.5;
    s.groundSpeedKnots = 112.0;
    s.groundTrackDegrees = 96.0;
    s.indicatedAirspeedKnots = 100.0;
    s.trueAirspeedKnots = 104.0;
    s.pitchDegrees = 10.0;
    s.rollDegrees = 20.0;
    s.headingDegrees = 90.0;
    s.headingRateDegreesPerSecond = 3.0;
    s.pitchRateRadiansPerSecond = 0.25;
    s.yawRateRadiansPerSecond = 0.5;
    s.rollRateRadiansPerSecond = 0.125;
    s.specificForceForward = 1.0;
    s.specificForceRight = -2.0;
    s.specificForceDown = -8.0;
    s.pressureMillibars = 1016.0;
    s.temperatureCelsius = 12.5;
    return s;
}

// Group number to the offset of its first value.
std::map<int, size_t> groupsOf(const Bytes& datagram) {
    std::map<int, size_t> out;
    EXPECT_EQ((datagram.size() - 5) % 36, 0u);
    for (size_t at = 5; at + 36 <= datagram.size(); at += 36) {
        int32_t index = 0;
        std::memcpy(&index, &datagram[at], 4);
        out[index] = at + 4;
    }
    return out;
}

double value(const Bytes& datagram, int group, size_t number) {
    const auto groups = groupsOf(datagram);
    const auto found = groups.find(group);
    if (found == groups.end()) {
        ADD_FAILURE() << "no group " << group;
        return 0.0;
    }
    float out = 0.0f;
    std::memcpy(&out, &datagram[found->second + 4 * number], 4);
    return static_cast<double>(out);
}

double bigDouble(const Bytes& datagram, size_t offset) {
    uint64_t bits = 0;
    for (size_t i = 0; i < 8; ++i)
        bits = bits << 8 | datagram.at(offset + i);
    double out = 0.0;
    std::memcpy(&out, &bits, 8);
    return out;
}

} // namespace

TEST(XPlaneSender, HeaderAndAttitudeGroupToTheByte) {
    XPlaneSender sender;
    const Bytes datagram = sent(sender, plain());
    ASSERT_EQ(datagram.size(), 5u + 8u * 36u);
    EXPECT_EQ(std::string(datagram.begin(), datagram.begin() + 5), "DATA*");
    // Group 17: pitch 10, roll 20, true and magnetic heading 90, then nothing.
    const Bytes attitude{0x11, 0,    0, 0, 0, 0, 0x20, 0x41, 0, 0, 0xa0, 0x41, 0, 0, 0xb4, 0x42, 0, 0,
                         0xb4, 0x42, 0, 0, 0, 0, 0,    0,    0, 0, 0,    0,    0, 0, 0,    0,    0, 0};
    const size_t at = groupsOf(datagram).at(17) - 4;
    EXPECT_EQ(Bytes(datagram.begin() + static_cast<long>(at), datagram.begin() + static_cast<long>(at) + 36), attitude);
}

TEST(XPlaneSender, PutsEachValueWhereTheReceiverLooksForIt) {
    XPlaneSender sender;
    const Bytes d = sent(sender, plain());
    EXPECT_NEAR(value(d, 1, 5), 23.0 + 59.0 / 60.0 + 58.0 / 3600.0, 3e-6);
    EXPECT_EQ(value(d, 3, 0), 100.0);
    EXPECT_EQ(value(d, 3, 3), 112.0);
    EXPECT_NEAR(value(d, 6, 0) * 33.86383613011467, 1016.0, 1e-3);
    EXPECT_EQ(value(d, 6, 2), 12.5);
    EXPECT_NEAR(value(d, 16, 2) * 57.29577950560105, 3.0, 1e-5);
    EXPECT_EQ(value(d, 20, 0), 42.0);
    EXPECT_EQ(value(d, 20, 1), -28.5);
    EXPECT_NEAR(value(d, 20, 2), 1000.0, 1e-3);
    EXPECT_EQ(value(d, 21, 4), 2.5);
    // The receiver draws the ball at tan(slip) * -9.81 against 9.81 downwards: here a quarter of the load, to the
    // right.
    EXPECT_NEAR(std::tan(toRadians(value(d, 18, 7))) * -9.81 / 9.81, 0.25, 1e-6);
}

TEST(XPlaneSender, SendsLandingBeamsAndTrafficOnlyWhenThereAreSome) {
    XPlaneSender sender;
    FlightState state = plain();
    EXPECT_EQ(groupsOf(sent(sender, state)).count(22) + groupsOf(sent(sender, state)).count(99), 0u);
    state.hasIls = true;
    state.localizerDots = -1.5;
    state.glideslopeDots = 0.75;
    state.trafficCount = 8;
    for (size_t i = 0; i < 8; ++i)
        state.traffic[i] = {40.0 + static_cast<double>(i), -20.0 - static_cast<double>(i), 304.8, 0.0, 0.0, 0.0, ""};
    state.traffic[3].longitudeDegrees = 0.0;
    const Bytes d = sent(sender, state);
    ASSERT_LE(d.size(), 512u) << "more than the receiver's buffer holds";
    EXPECT_EQ(value(d, 99, 5), -1.5);
    EXPECT_EQ(value(d, 99, 6), 0.75);
    for (size_t i = 0; i < 8; ++i) {
        EXPECT_EQ(value(d, 22, i), 40.0 + static_cast<double>(i));
        EXPECT_NE(value(d, 23, i), 0.0) << "a zero ends the list of aircraft";
        EXPECT_NEAR(value(d, 24, i), 1000.0, 0.01);
    }
    state.trafficCount = 2;
    EXPECT_EQ(value(sent(sender, state), 22, 2), 0.0);
}

TEST(FlightGearSender, StreamToTheByte) {
    FlightState state = plain();
    state.pitchDegrees = state.rollDegrees = state.headingDegrees = 0.0;
    FlightGearSender sender;
    const Bytes d = sent(sender, state);
    ASSERT_EQ(d.size(), 168u);
    const auto at = [&](size_t offset, std::initializer_list<uint8_t> head, size_t size) {
        Bytes expected(head);
        expected.resize(size, 0);
        const auto begin = d.begin() + static_cast<long>(offset);
        EXPECT_EQ(Bytes(begin, begin + static_cast<long>(size)), expected) << "at " << offset;
    };
    at(0, {}, 24);           // pitch, yaw, roll
    at(24, {0x3f, 0xd0}, 8); // rates 0.25, 0.5, 0.125
    at(32, {0x3f, 0xe0}, 8);
    at(40, {0x3f, 0xc0}, 8);
    at(48, {0xbf, 0xf0}, 8); // accelerations -1, -2, 8
    at(56, {0xc0, 0x00}, 8);
    at(64, {0x40, 0x20}, 8);
    at(72, {0x40, 0x58}, 8);                                     // track 96
    at(80, {0x40, 0x5c}, 8);                                     // ground speed 112
    at(88, {0x40, 0x73, 0x0c, 0xcc, 0xcc, 0xcc, 0xcc, 0xcd}, 8); // altitude 304.8
    at(96, {0x40, 0x45}, 8);                                     // latitude 42
    at(104, {0xc0, 0x3c, 0x80}, 8);                              // longitude -28.5
    at(112, {0x40, 0x04}, 8);                                    // vertical speed 2.5
    at(120, {0x40, 0x29}, 8);                                    // temperature 12.5
    at(128, {0, 0, 0, 23, 0, 0, 0, 59, 0, 0, 0, 58}, 12);
    at(140, {0, 0, 0, 29, 0, 0, 0, 2, 0, 0, 0x07, 0xe8}, 12);
    at(152, {0x40, 0x8f, 0xc0}, 8); // pressure 1016
    at(160, {0x40, 0x59}, 8);       // air speed 100
}

TEST(FlightGearSender, AnglesAreRadians) {
    FlightGearSender sender;
    const Bytes d = sent(sender, plain());
    EXPECT_DOUBLE_EQ(bigDouble(d, 0), 10.0 * M_PI / 180.0);
    EXPECT_DOUBLE_EQ(bigDouble(d, 8), M_PI / 2.0);
    EXPECT_DOUBLE_EQ(bigDouble(d, 16), 20.0 * M_PI / 180.0);
}

TEST(FlightGearSender, LevelFlightFeelsOneGravityAndTheBallFallsToTheLowSide) {
    FlightGearSender sender;
    // What the receiver makes of the three: x = -second, y = -third, z = first.
    const auto states = fly("start 42 -28.5 altitude 3000ft heading 010\nlevel 20s\nslip 5deg 15s\n", 0.1);
    const Bytes level = sent(sender, states[150]);
    EXPECT_NEAR(-bigDouble(level, 56), 0.0, 0.01);
    EXPECT_NEAR(-bigDouble(level, 64), -9.81, 0.01);
    EXPECT_NEAR(bigDouble(level, 48), 0.0, 0.3);
    const Bytes slip = sent(sender, states[320]);
    ASSERT_GT(bigDouble(slip, 16), 0.05) << "the right wing is low here";
    EXPECT_NEAR(-bigDouble(slip, 56), 9.81 * std::sin(5.0 * M_PI / 180.0), 0.05);
}

TEST(FlightGearDefinition, ListsExactlyTheStream) {
    const std::string xml = projectFile("packaging/flightgear/skyvane.xml");
    using ::testing::HasSubstr;
    EXPECT_THAT(xml, HasSubstr("<binary_mode>true</binary_mode>"));
    EXPECT_THAT(xml, HasSubstr("<byte_order>network</byte_order>"));
    const auto element = [](const std::string& chunk, const std::string& name) {
        const size_t begin = chunk.find("<" + name + ">"), end = chunk.find("</" + name + ">");
        return begin == std::string::npos ? std::string()
                                          : chunk.substr(begin + name.size() + 2, end - begin - name.size() - 2);
    };
    std::vector<std::string> found;
    size_t bytes = 0;
    for (size_t at = xml.find("<chunk>"); at != std::string::npos; at = xml.find("<chunk>", at + 1)) {
        const std::string chunk = xml.substr(at, xml.find("</chunk>", at) - at);
        const std::string type = element(chunk, "type");
        ASSERT_TRUE(type == "double" || type == "int") << chunk;
        bytes += type == "double" ? 8 : 4;
        const std::string factor = element(chunk, "factor");
        found.push_back(type + " " + element(chunk, "node") + (factor.empty() ? "" : " " + factor.substr(0, 7)));
    }
    EXPECT_EQ(bytes, FlightGearSender::DATAGRAM_BYTES);
    EXPECT_THAT(
        found,
        ::testing::ElementsAre(
            "double /orientation/pitch-deg 0.01745", "double /orientation/heading-deg 0.01745",
            "double /orientation/roll-deg 0.01745", "double /orientation/q-body", "double /orientation/r-body",
            "double /orientation/p-body", "double /accelerations/pilot/x-accel-fps_sec -0.3048",
            "double /accelerations/pilot/y-accel-fps_sec 0.3048", "double /accelerations/pilot/z-accel-fps_sec -0.3048",
            "double /orientation/track-deg", "double /velocities/groundspeed-kt", "double /position/altitude-ft 0.3048",
            "double /position/latitude-deg", "double /position/longitude-deg",
            "double /velocities/vertical-speed-fps 0.3048", "double /environment/temperature-degc",
            "int /sim/time/utc/hour", "int /sim/time/utc/minute", "int /sim/time/utc/second", "int /sim/time/utc/day",
            "int /sim/time/utc/month", "int /sim/time/utc/year", "double /environment/pressure-inhg 33.8638",
            "double /instrumentation/airspeed-indicator/indicated-speed-kt"));
}
