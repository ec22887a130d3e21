#include "flightfeed/command/Feed.h"
#include "flightfeed/command/Options.h"
#include "flightfeed/flight/HeldState.h"
#include "flightfeed/send/FlightGearSender.h"
#include "flightfeed/send/UdpSender.h"

#include <arpa/inet.h>
#include <cmath>
#include <gmock/gmock.h>
#include <poll.h>
#include <sstream>
#include <sys/socket.h>
#include <unistd.h>

using namespace skyvane;
using ::testing::HasSubstr;

namespace {

std::string errorOf(const std::vector<std::string>& arguments) {
    Options options;
    std::string error;
    EXPECT_FALSE(parseOptions(arguments, options, error));
    return error;
}

// Two states of one second each, over and over again.
class Blinker : public IFlightSource {
public:
    const FlightState& state() const override { return state_; }
    bool advance(double seconds) override {
        state_.timeSeconds += seconds;
        return state_.timeSeconds < 1.9;
    }
    void restart() override { state_ = FlightState(); }

private:
    FlightState state_;
};

struct Log : IProtocolSender, IDatagramSink, IPacer {
    void send(const FlightState& state, IDatagramSink&) override { times.push_back(state.timeSeconds); }
    void send(const void*, size_t) override {}
    void waitUntil(double flightSeconds) override { waits.push_back(flightSeconds); }

    std::vector<double> times, waits;
};

class Receiver {
public:
    explicit Receiver(int family) : handle_(socket(family, SOCK_DGRAM, 0)) {
        sockaddr_storage address{};
        address.ss_family = static_cast<sa_family_t>(family);
        inet_pton(family, family == AF_INET ? "127.0.0.1" : "::1",
                  family == AF_INET ? static_cast<void*>(&reinterpret_cast<sockaddr_in&>(address).sin_addr)
                                    : static_cast<void*>(&reinterpret_cast<sockaddr_in6&>(address).sin6_addr));
        socklen_t size = family == AF_INET ? sizeof(sockaddr_in) : sizeof(sockaddr_in6);
        bound_ = bind(handle_, reinterpret_cast<sockaddr*>(&address), size) == 0;
        getsockname(handle_, reinterpret_cast<sockaddr*>(&address), &size);
        port_ = ntohs(reinterpret_cast<sockaddr_in&>(address).sin_port);
    }
    ~Receiver() { close(handle_); }

    bool bound() const { return bound_; }
    int port() const { return port_; }
    long receive(char* buffer, size_t size) const {
        pollfd waiting{handle_, POLLIN, 0};
        return poll(&waiting, 1, 5000) == 1 ? recv(handle_, buffer, size, 0) : -1;
    }

private:
    int handle_;
    bool bound_ = false;
    int port_ = 0;
};

} // namespace

TEST(Options, ReadsWhatIsAskedFor) {
    Options options;
    std::string error;
    ASSERT_TRUE(parseOptions({"--protocol", "xplane", "--host", "::1", "--port", "49001", "--rate", "25", "--speed",
                              "max", "--duration", "60", "--from", "12.5", "--hold", "--state", "pitch=1", "--loop"},
                             options, error))
        << error;
    EXPECT_STREQ(options.protocol->name, "xplane");
    EXPECT_EQ(options.protocol->port, 49000);
    EXPECT_EQ(options.port, 49001);
    EXPECT_EQ(options.speed, 0.0);
    EXPECT_EQ(options.fromSeconds, 12.5);
    EXPECT_TRUE(options.hold && options.loop && !options.print);
}

TEST(Options, TellsWhatDoesNotFit) {
    EXPECT_THAT(errorOf({"--bogus"}), HasSubstr("unknown"));
    EXPECT_THAT(errorOf({"--port"}), HasSubstr("needs a value"));
    for (const char* port : {"0", "65536", "80.5", "x", "nan"})
        EXPECT_THAT(errorOf({"--port", port}), HasSubstr("doesn't fit --port"));
    EXPECT_THAT(errorOf({"--rate", "0"}), HasSubstr("doesn't fit"));
    EXPECT_THAT(errorOf({"--speed", "inf"}), HasSubstr("doesn't fit"));
    EXPECT_THAT(errorOf({"--protocol", "morse"}), HasSubstr("doesn't fit"));
    EXPECT_THAT(errorOf({"--hold", "--replay", "f"}), HasSubstr("exclude"));
    EXPECT_THAT(errorOf({"--state", "pitch=1"}), HasSubstr("needs --hold"));
    EXPECT_THAT(errorOf({"--plan", "fpl.ini"}), HasSubstr("needs --charts"));
    EXPECT_THAT(errorOf({"--plan", "fpl.ini", "--charts", "c"}), HasSubstr("a --card that flies it"));
    EXPECT_THAT(errorOf({"--record", "f.dat", "--loop"}), HasSubstr("--loop"));
    EXPECT_THAT(errorOf({"--record", "f.dat", "--replay", "f.csv"}), HasSubstr("--replay"));
}

TEST(HeldState, KeepsWhatWasSetAndDerivesTheRest) {
    HeldState held;
    std::string error;
    ASSERT_TRUE(held.set("pitch=10,roll=20,heading=450,altitude_ft=5000,ias_kt=100,vs_fpm=-600,ball=-3", error));
    for (int i = 0; i < 100; ++i)
        ASSERT_TRUE(held.advance(1.0 / 30.0));
    const FlightState& s = held.state();
    EXPECT_EQ(s.pitchDegrees, 10.0);
    EXPECT_EQ(s.rollDegrees, 20.0);
    EXPECT_EQ(s.headingDegrees, 90.0);
    EXPECT_NEAR(s.altitudeMetres, 1524.0, 1e-9);
    EXPECT_NEAR(s.verticalSpeedMetresPerSecond, -3.048, 1e-9);
    EXPECT_NEAR(s.trueAirspeedKnots, 107.7, 0.1);
    EXPECT_NEAR(s.groundTrackDegrees, 90.0, 1e-9);
    EXPECT_NEAR(s.pressureMillibars, 843.1, 0.1);
    EXPECT_NEAR(ballAngleDegrees(s), -3.0, 1e-9);
    EXPECT_NEAR(s.headingRateDegreesPerSecond, 3.69, 0.02);
    EXPECT_NEAR(s.timeSeconds, 100.0 / 30.0, 1e-9);
}

TEST(HeldState, RefusesUnknownNamesAndTextsThatAreNoNumbers) {
    HeldState held;
    std::string error;
    const double before = held.state().pitchDegrees;
    EXPECT_FALSE(held.set("pitch=5,yaw=3", error));
    EXPECT_THAT(error, HasSubstr("\"yaw=3\""));
    EXPECT_FALSE(held.set("pitch=5x", error));
    EXPECT_FALSE(held.set("pitch", error));
    EXPECT_FALSE(held.set("pitch=nan", error));
    EXPECT_EQ(held.state().pitchDegrees, before);
}

TEST(Feed, SendsAtItsRateLoopsAndStops) {
    Blinker source;
    Log log;
    FeedSettings settings;
    settings.ratePerSecond = 1.0;
    feedFlight(source, log, log, nullptr, log, settings);
    EXPECT_THAT(log.times, ::testing::ElementsAre(0.0, 1.0));
    EXPECT_THAT(log.waits, ::testing::ElementsAre(0.0, 1.0));
    source.restart();
    Log looped;
    settings.loop = true;
    settings.durationSeconds = 5.0;
    feedFlight(source, looped, looped, nullptr, looped, settings);
    EXPECT_THAT(looped.times, ::testing::ElementsAre(0.0, 1.0, 0.0, 1.0, 0.0));
    EXPECT_THAT(looped.waits, ::testing::ElementsAre(0.0, 1.0, 2.0, 3.0, 4.0));
}

TEST(Feed, PrintsWhatItSends) {
    HeldState held;
    std::string error;
    ASSERT_TRUE(held.set("roll=-0.0001,heading=359.9996,vs_fpm=500", error));
    std::ostringstream out;
    TruthPrinter printer(out);
    Log log;
    FeedSettings settings;
    settings.durationSeconds = 0.06;
    printer.printHeader();
    feedFlight(held, log, log, &printer, log, settings);
    const std::string text = out.str();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 3);
    EXPECT_THAT(text, HasSubstr("time_s,utc_s,latitude_deg"));
    EXPECT_THAT(text, HasSubstr(",3000.00,0.000,0.000,"));
    EXPECT_THAT(text, HasSubstr(",500.0,"));
}

TEST(UdpSender, ReachesBothFamiliesAndSurvivesThatNobodyListens) {
    for (const int family : {AF_INET, AF_INET6}) {
        const std::string host = family == AF_INET ? "127.0.0.1" : "::1";
        int port = 0;
        {
            const Receiver receiver(family);
            if (!receiver.bound())
                continue; // a machine without IPv6
            port = receiver.port();
            std::string error;
            const auto sender = UdpSender::open(host, port, error);
            ASSERT_TRUE(sender) << error;
            sender->send("hello", 5);
            char buffer[16];
            EXPECT_EQ(receiver.receive(buffer, sizeof(buffer)), 5) << host;
        }
        std::string error;
        const auto sender = UdpSender::open(host, port, error);
        ASSERT_TRUE(sender) << error;
        for (int i = 0; i < 5; ++i)
            sender->send("anyone?", 7);
    }
    std::string error;
    EXPECT_EQ(UdpSender::open("not an address", 1, error), nullptr);
    EXPECT_THAT(error, HasSubstr("not an address"));
}
