#include "sensors/nmea/ComGPSReceiver.h"

#include "NmeaText.h"
#include "core/ini/IniFile.h"
#include "core/time/Time.h"
#include "sensors/FakeDialogs.h"
#include "sensors/TemporaryFolder.h"
#include "sensors/nmea/ComGPSReceiverFactory.h"
#include "sensors/nmea/GpsTrust.h"
#include "sensors/transport/PseudoTerminal.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <filesystem>
#include <thread>

namespace skyvane {
namespace {

/// One second of a receiver that climbs at 2 m/s, turns right at 3 degrees per second and flies at 90 knots.
std::string second(int n) {
    char gga[160], rmc[160];
    std::snprintf(gga, sizeof gga, "GPGGA,1200%02d,4200.0,N,02800.0,W,1,08,0.9,%d.0,M,50.0,M,,", n, 500 + 2 * n);
    std::snprintf(rmc, sizeof rmc, "GPRMC,1200%02d,A,4200.0,N,02800.0,W,90.0,%d.0,010626,,", n, (350 + 3 * n) % 360);
    return nmea(gga) + nmea("GPGSA,A,3,04,05,,09,12,,,24,,,,,2.5,1.3,2.1") + nmea(rmc);
}

struct ComGPSReceiverTest : testing::Test {
    ComGPSReceiverTest() {
        setClock(&clock);
        plugIn();
    }
    ~ComGPSReceiverTest() override { setClock(nullptr); }

    /// The device is a link to the terminal of the moment, as a port keeps its name.
    void plugIn() {
        terminal.emplace();
        std::filesystem::remove(path);
        std::filesystem::create_symlink(terminal->path(), path);
    }
    void pullOut() {
        terminal.reset();
        std::filesystem::remove(path);
    }
    bool update(const std::string& bytes) {
        terminal->write(bytes);
        for (int i = 0; i < 2000; ++i) {
            if (receiver.Update())
                return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(1)); // the kernel hands the bytes over
        }
        return false;
    }
    template <class Record>
    double value(ISensorData::Type type) {
        return static_cast<Record*>(receiver.getData(type))->value;
    }

    TemporaryFolder folder;
    std::string path = folder.path("gps");
    ManualClock clock;
    std::optional<PseudoTerminal> terminal;
    ComGPSReceiver receiver{path, 1024, 2000, 4800, 1.0, 0.001};
};

TEST_F(ComGPSReceiverTest, publishesWhatTheReceiverSaysAndItsRates) {
    receiver.Update();
    EXPECT_EQ(receiver.getWarning(ISensorData::Position), ISensor::WRONG);
    for (int n = 0; n < 12; ++n) {
        ASSERT_TRUE(update(second(n)));
        clock.advance(1.0);
    }
    for (const ISensorData::Type type : receiver.getSupportedDataTypes()) {
        EXPECT_TRUE(receiver.isDataTypeSupported(type) && receiver.lastTimeUpdated(type));
        EXPECT_EQ(receiver.getWarning(type), ISensor::GOOD) << type;
    }
    EXPECT_EQ(receiver.getWarning(ISensorData::Attitude), ISensor::WRONG);
    EXPECT_EQ(receiver.getData(ISensorData::Attitude), nullptr);
    EXPECT_EQ(value<Altitude_Data>(ISensorData::Altitude), 522.0);
    EXPECT_EQ(value<Heading_Data>(ISensorData::Heading), 23.0);
    EXPECT_EQ(value<GroundSpeed_Data>(ISensorData::GroundSpeed), 90.0);
    EXPECT_NEAR(value<VerticalSpeed_Data>(ISensorData::VerticalSpeed), 2.0, 0.01);
    EXPECT_NEAR(value<TurnRate_Data>(ISensorData::TurnRate), 3.0, 0.01) << "through north";
    EXPECT_EQ(static_cast<Altitude_Data*>(receiver.getData(ISensorData::Altitude))->timeStamp, 43211000u);
}

TEST_F(ComGPSReceiverTest, aReceiverThatIsPulledOutAndPutBackIsReadAgain) {
    receiver.Update();
    ASSERT_TRUE(update(second(0)));
    EXPECT_EQ(receiver.getWarning(ISensorData::Position), ISensor::GOOD);
    pullOut();
    clock.advance(1.9);
    EXPECT_FALSE(receiver.Update());
    EXPECT_EQ(receiver.getWarning(ISensorData::Position), ISensor::GOOD) << "within its time-out";
    for (int seconds = 0; seconds < 20; ++seconds) {
        clock.advance(1.0);
        EXPECT_FALSE(receiver.Update());
        EXPECT_EQ(receiver.getWarning(ISensorData::Position), ISensor::WRONG);
    }
    plugIn();
    clock.advance(1.0);
    receiver.Update();
    ASSERT_TRUE(update(second(30)));
    EXPECT_EQ(receiver.getWarning(ISensorData::Position), ISensor::GOOD);
}

TEST(GpsTrust, eachTypeHasItsOwnTests) {
    GPS_Data good;
    good.fixQuality = 1;
    good.status = 1;
    good.satelliteCount = 5;
    good.fixType = 3;
    good.groundSpeed = 10.0;
    good.positionAvailable = good.altitudeAvailable = good.dilutionOfPrecisionAvailable = good.speedAvailable =
        good.groundTrackAvailable = true;
    const auto levels = [](const GPS_Data& gps) {
        std::string text;
        for (const ISensorData::Type type :
             {ISensorData::GPS, ISensorData::Heading, ISensorData::TurnRate, ISensorData::Position,
              ISensorData::Altitude, ISensorData::VerticalSpeed, ISensorData::GroundSpeed})
            text += static_cast<char>('0' + gpsTrust(gps, type));
        return text;
    };
    const auto with = [&good](auto change) {
        GPS_Data gps = good;
        change(gps);
        return gps;
    };
    EXPECT_EQ(levels(good), "0000000");
    EXPECT_EQ(levels(with([](GPS_Data& g) { g.fixQuality = 0; })), "2222222");
    EXPECT_EQ(levels(with([](GPS_Data& g) { g.status = 0; })), "2222222");
    EXPECT_EQ(levels(with([](GPS_Data& g) { g.fixType = 1; })), "2222222");
    EXPECT_EQ(levels(with([](GPS_Data& g) { g.fixType = 2; })), "1001221");
    EXPECT_EQ(levels(with([](GPS_Data& g) { g.satelliteCount = 4; })), "1110110");
    EXPECT_EQ(levels(with([](GPS_Data& g) { g.satelliteCount = 3; })), "1111221");
    EXPECT_EQ(levels(with([](GPS_Data& g) { g.groundSpeed = 9.9; })), "1110110");
    EXPECT_EQ(levels(with([](GPS_Data& g) { g.positionAvailable = false; })), "2222222");
    EXPECT_EQ(levels(with([](GPS_Data& g) { g.altitudeAvailable = false; })), "1110220");
    EXPECT_EQ(levels(with([](GPS_Data& g) { g.dilutionOfPrecisionAvailable = false; })), "1001111");
    EXPECT_EQ(levels(with([](GPS_Data& g) { g.speedAvailable = false; })), "0000002");
    EXPECT_EQ(levels(with([](GPS_Data& g) { g.groundTrackAvailable = false; })), "2220110");
}

TEST(ComGPSReceiverFactory, takesItsSettingsFromTheSection) {
    FakeDialogs dialogs;
    ComGPSReceiverFactory factory(&dialogs);
    IniFile ini;
    ini.set("S1", "device", "/dev/gps7");
    ini.set("S1", "bufferSize", "-1");
    factory.loadSetupFromIni(&ini, "S1");
    EXPECT_EQ(factory.Create()->getName(), "GPS receiver: /dev/gps7");
    EXPECT_TRUE(factory.isDataTypeSupported(ISensorData::Position));
    EXPECT_FALSE(factory.isDataTypeSupported(ISensorData::Attitude));
    EXPECT_TRUE(factory.setup(&ini, "S1"));
}

} // namespace
} // namespace skyvane
