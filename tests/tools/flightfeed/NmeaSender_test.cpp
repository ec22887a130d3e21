#include "flightfeed/send/NmeaSender.h"

#include "flightfeed/flight/HeldState.h"
#include "flightfeed/send/StreamSenders.h"
#include "sensors/nmea/NMEA_Parser.h"
#include "sensors/transport/RS232Socket.h"

#include <arpa/inet.h>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace skyvane;

namespace {

struct TextSink : IDatagramSink {
    void send(const void* bytes, size_t count) override {
        text.append(static_cast<const char*>(bytes), count);
        ++sends;
    }
    std::string text;
    int sends = 0;
};

FlightState plain() {
    FlightState s;
    s.utcSeconds = 1709251198.2; // 2024-02-29 23:59:58
    s.latitudeDegrees = -42.25;
    s.longitudeDegrees = -8.9999999999;
    s.altitudeMetres = 304.8;
    s.groundSpeedKnots = 112.0;
    s.groundTrackDegrees = 96.5;
    return s;
}

const std::string Link = "flightfeed-test-gps-" + std::to_string(::getpid());

} // namespace

TEST(NmeaSender, SaysWhatAReceiverWouldSay) {
    TextSink sink;
    NmeaSender().send(plain(), sink);
    EXPECT_EQ(sink.text, "$GPGGA,235958.20,4215.00000,S,00900.00000,W,1,10,0.9,304.8,M,0.0,M,,*5D\r\n"
                         "$GPGSA,A,3,02,04,06,07,09,12,17,19,24,28,,,1.6,0.9,1.3*31\r\n"
                         "$GPRMC,235958.20,A,4215.00000,S,00900.00000,W,112.00,96.50,290224,,,A*6F\r\n");
    FlightState standing = plain();
    standing.groundSpeedKnots = 0.1;
    TextSink quiet;
    NmeaSender().send(standing, quiet);
    EXPECT_THAT(quiet.text, ::testing::HasSubstr(",0.10,,290224,"));
}

TEST(NmeaSender, EverySentenceOfAFlightIsUnderstoodFiveTimesASecond) {
    NmeaSender sender;
    HeldState flight;
    NMEA_Parser parser(NMEA_Parser::Gp, 2000);
    TextSink sink;
    for (int i = 0; i < 300; ++i) {
        sender.send(flight.state(), sink);
        flight.advance(1.0 / 30.0);
    }
    EXPECT_EQ(sink.sends, 50);
    int taken = 0;
    for (const char byte : sink.text)
        taken += parser.doStep(byte) ? 1 : 0;
    EXPECT_EQ(taken, 150);
    EXPECT_NEAR(parser.getGPSData().latitude, flight.state().latitudeDegrees, 1e-7);
    EXPECT_NEAR(parser.getGPSData().longitude, flight.state().longitudeDegrees, 1e-7);
}

TEST(PseudoTerminalSender, IsReadAsASerialPort) {
    std::string error;
    auto sink = PseudoTerminalSender::open(Link, error);
    ASSERT_TRUE(sink) << error;
    RS232Socket port;
    ASSERT_TRUE(port.connectSocket(Link + ":4800"));
    sink->send("$A\r\n", 4);
    char bytes[16] = {};
    for (int i = 0; i < 2000 && port.getAvailableBytes() < 4; ++i)
        ::usleep(1000);
    EXPECT_EQ(port.recvData(bytes, sizeof bytes), 4);
    EXPECT_STREQ(bytes, "$A\r\n");
    const std::string flood(1000, 'x');
    for (int i = 0; i < 1000; ++i)
        sink->send(flood.data(), flood.size()); // nobody reads: it comes back all the same
    auto second = PseudoTerminalSender::open(Link, error);
    EXPECT_TRUE(second) << "an old link is replaced";
    second.reset();
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(Link)));
    std::ofstream(Link) << "a file";
    EXPECT_FALSE(PseudoTerminalSender::open(Link, error)) << "a file isn't";
    EXPECT_TRUE(std::filesystem::is_regular_file(Link));
    std::filesystem::remove(Link);
}

TEST(TcpServerSender, FeedsAllWhoConnectAndForgetsThoseWhoLeave) {
    std::string error;
    std::unique_ptr<TcpServerSender> sink;
    int port = 42110;
    while (!sink && port < 42140)
        sink = TcpServerSender::open("127.0.0.1", ++port, error);
    ASSERT_TRUE(sink) << error;
    EXPECT_FALSE(TcpServerSender::open("127.0.0.1", port, error));
    EXPECT_THAT(error, ::testing::HasSubstr("can't listen"));
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const auto connected = [&address] {
        const int handle = socket(AF_INET, SOCK_STREAM, 0);
        EXPECT_EQ(connect(handle, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        return handle;
    };
    const int stays = connected();
    ::close(connected());
    for (int i = 0; i < 5; ++i)
        sink->send("ab", 2);
    std::string text;
    pollfd waiting{stays, POLLIN, 0};
    while (text.size() < 10 && poll(&waiting, 1, 3000) == 1) {
        char bytes[16];
        const ssize_t count = recv(stays, bytes, sizeof bytes, 0);
        ASSERT_GT(count, 0);
        text.append(bytes, static_cast<size_t>(count));
    }
    EXPECT_EQ(text, "ababababab");
    ::close(stays);
}
