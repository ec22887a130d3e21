#include "sensors/raw/ExternalRawDataSource.h"

#include "sensors/nmea/NmeaText.h"
#include "sensors/raw/InternalRawDataSource.h"
#include "sensors/transport/IDeviceDescriptor.h"
#include "sensors/transport/PseudoTerminal.h"
#include "sensors/transport/RS232Socket.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace skyvane {
namespace {

/// Each "!" completes a sentence; the satellite count is that of all of them.
class CountingParser : public IGPSParser {
public:
    bool doStep(char byte) override {
        gps_.satelliteCount += byte == '!' ? 1 : 0;
        return byte == '!';
    }
    GPS_Data getGPSData() override { return gps_; }

private:
    GPS_Data gps_;
};

struct ExternalRawDataSourceTest : testing::Test {
    PseudoTerminal device;
    ExternalRawDataSource source{std::make_unique<RS232Socket>(),
                                 device.path() + ":4800",
                                 "Receiver",
                                 std::make_unique<CountingParser>(),
                                 1024,
                                 2000};
    unsigned now = 5000;
    std::string text;

    void read(unsigned milliseconds) {
        now += milliseconds;
        source.receiveAndLockData(nullptr, now);
        text = source.getRawNMEA();
        source.unLock();
    }
    template <class Condition>
    bool reading(Condition condition, unsigned milliseconds) {
        for (int i = 0; i < 3000 && !condition(); ++i) {
            read(milliseconds);
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        return condition();
    }
    bool connect() {
        return reading([this] { return source.getConnectivity(); }, 1001);
    }
};

TEST_F(ExternalRawDataSourceTest, readsTheReceiverAsSoonAsItIsThere) {
    EXPECT_EQ(source.getName(), "Receiver");
    read(0);
    EXPECT_FALSE(source.getConnectivity()) << "it is being connected";
    ASSERT_TRUE(connect());
    GPS_Data gps;
    EXPECT_FALSE(source.getGPS(gps));
    device.write("ab!c!");
    ASSERT_TRUE(reading([this] { return !text.empty(); }, 1));
    ASSERT_TRUE(source.getGPS(gps));
    EXPECT_EQ(gps.satelliteCount, 1);
    EXPECT_TRUE(source.getCompatibility());
    IRawSource::Vector vector;
    EXPECT_FALSE(source.getAcc(vector) || source.getGyro(vector) || source.getMag(vector));
}

TEST_F(ExternalRawDataSourceTest, aSilentReceiverIsGivenUpAndTriedAgain) {
    ASSERT_TRUE(connect());
    read(12000);
    EXPECT_TRUE(source.getConnectivity()) << "a new link is given time";
    read(1);
    EXPECT_FALSE(source.getConnectivity());
    EXPECT_FALSE(source.getCompatibility()) << "it never gave a sentence";
    read(1000);
    EXPECT_FALSE(source.getConnectivity()) << "not before more than a second";
    ASSERT_TRUE(connect());
    device.write("!");
    ASSERT_TRUE(reading([this] { return !text.empty(); }, 1));
    read(30000);
    EXPECT_FALSE(source.getConnectivity());
    EXPECT_TRUE(source.getCompatibility());
}

TEST(InternalRawDataSource, hasAReceiverThatKnowsNothing) {
    InternalRawDataSource source;
    source.receiveAndLockData(nullptr, 0);
    GPS_Data gps;
    gps.satelliteCount = 7;
    EXPECT_TRUE(source.getGPS(gps));
    EXPECT_EQ(gps.satelliteCount, -1);
    Matrix3x3 matrix;
    double number = 0.0;
    EXPECT_FALSE(source.getIntegratedMatrix(matrix) || source.getTemperature(number) || source.getPressure(number) ||
                 source.getSamplePeriod(number) || source.getDeltaMatrix(matrix, number, number));
    source.unLock();
    EXPECT_TRUE(source.getConnectivity() && source.getCompatibility());
    EXPECT_EQ(source.getName(), "Internal Sensors");
}

TEST(ExternalRawDataSource, namesABluetoothDevice) {
    BluetoothDevice device("00:11:22:33:44:55", "Receiver");
    EXPECT_EQ(ExternalRawDataSource(&device, 10, 10, 10).getName(), "Bluetooth device: Receiver | 00:11:22:33:44:55");
}

TEST(ExternalRawDataSource, readsARecordedReceiverOverASerialLine) {
    const std::string log = receiverLog("neo-m8n.log");
    if (log.empty())
        GTEST_SKIP() << "SKYVANE_DATA has no nmea/neo-m8n.log";
    PseudoTerminal terminal;
    RS232Device device(terminal.path(), 115200);
    ExternalRawDataSource source(&device, 512, 2000, 2000);
    EXPECT_EQ(source.getName(), "RS232 device: " + terminal.path());
    std::string text;
    GPS_Data gps;
    size_t written = 0;
    unsigned now = 0;
    for (int i = 0; i < 5000 && text.size() < log.size(); ++i) {
        source.receiveAndLockData(nullptr, now += source.getConnectivity() ? 1 : 1001);
        text += source.getRawNMEA();
        source.unLock();
        if (source.getConnectivity() && written < log.size() && text.size() == written) {
            terminal.write(log.substr(written, 1000)); // less than the line holds
            written = std::min(written + 1000, log.size());
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    EXPECT_EQ(text, log);
    ASSERT_TRUE(source.getGPS(gps) && source.getCompatibility());
    EXPECT_NEAR(gps.latitude, 44.0690, 0.001);
    EXPECT_NEAR(gps.longitude, -121.3142, 0.001);
    EXPECT_EQ(gps.satelliteCount, 12);
}

} // namespace
} // namespace skyvane
