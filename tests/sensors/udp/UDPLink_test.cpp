#include "core/log/Logger.h"
#include "sensors/FakeDialogs.h"
#include "sensors/FormText.h"
#include "sensors/SensorFakes.h"
#include "sensors/TemporaryFolder.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/LocGs_Data.h"
#include "sensors/records/Traffic_Data.h"
#include "sensors/transport/IPv4UDPSocket.h"
#include "sensors/transport/IWifiAddresses.h"
#include "sensors/udp/UDPForwarder.h"
#include "sensors/udp/UDPForwarderFactory.h"
#include "sensors/udp/UDPSensor.h"
#include "sensors/udp/UDPSensorFactory.h"
#include "support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>
#include <thread>

namespace skyvane {
namespace {

Bytes packetOf(ISensorData& record, int sequenceNumber, ISensor::WarningLevel level = ISensor::GOOD, int type = -1) {
    const Bytes form = formOf(record);
    SDatPacket packet;
    packet.type = type >= 0 ? type : record.getType();
    packet.level = level;
    packet.sequenceNumber = static_cast<uint8_t>(sequenceNumber);
    packet.form = form.data();
    packet.length = form.size();
    Bytes bytes(packet.bytes());
    packet.write(bytes.data());
    return bytes;
}

Bytes operator+(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

struct UDPSensorTest : testing::Test {
    ManagerRig rig;
    UDPSensorFactory factory{&rig.manager, nullptr};
    UDPSensor sensor{&rig.manager, options(), factory.getSupportedDataTypes()};

    static UDPSensorOptions options() {
        UDPSensorOptions options;
        options.bindPort = 0;
        return options;
    }
    void SetUp() override {
        rig.clock.advance(100.0);
        sensor.Update();
    }
    bool take(Bytes datagram) { return sensor.OnDatagram(datagram.data(), datagram.size()); }
    bool takeHeading(double degrees, int sequenceNumber, ISensor::WarningLevel level = ISensor::GOOD) {
        Heading_Data heading(degrees, 1);
        return take(packetOf(heading, sequenceNumber, level));
    }
    double heading() { return static_cast<Heading_Data*>(sensor.getData(ISensorData::Heading))->value; }
    ISensor::WarningLevel warning(ISensorData::Type type) { return sensor.getWarning(type); }
};

TEST_F(UDPSensorTest, everyPacketOfADatagramCountsAndGarbageBetweenThemDoesnt) {
    Heading_Data heading(12.5, 7);
    Attitude_Data attitude(createYawMatrix(1.0), 8, 2);
    EXPECT_TRUE(take(fromHex("53446153") + packetOf(heading, 1) + fromHex("00FF53") +
                     packetOf(attitude, 1, ISensor::MAYBE_WRONG) + fromHex("5344617401")));
    EXPECT_EQ(this->heading(), 12.5);
    EXPECT_EQ(formOf(*sensor.getData(ISensorData::Attitude)), formOf(attitude));
    EXPECT_EQ(warning(ISensorData::Heading), ISensor::GOOD);
    EXPECT_EQ(warning(ISensorData::Attitude), ISensor::MAYBE_WRONG);
    EXPECT_TRUE(sensor.lastTimeUpdated(ISensorData::Heading));
    EXPECT_EQ(warning(ISensorData::Altitude), ISensor::WRONG) << "never came";
    sensor.Update();
    EXPECT_FALSE(sensor.lastTimeUpdated(ISensorData::Heading));
}

TEST_F(UDPSensorTest, silenceMakesEverythingWrong) {
    EXPECT_EQ(sensor.getSensorDetails(), "Timeout: 500 ms\n");
    takeHeading(1.0, 1);
    rig.clock.advance(0.499);
    EXPECT_EQ(warning(ISensorData::Heading), ISensor::GOOD);
    EXPECT_EQ(sensor.getSensorDetails(), "Last Update: 499 ms\nTimeout: 500 ms\n");
    rig.clock.advance(0.002);
    EXPECT_EQ(warning(ISensorData::Heading), ISensor::WRONG);
    EXPECT_EQ(heading(), 1.0) << "records keep their values";
    Attitude_Data attitude;
    takeHeading(2.0, 20);
    for (int i = 0; i < 60; ++i) {
        take(packetOf(attitude, 20 + i));
        rig.clock.advance(0.1);
    }
    EXPECT_EQ(warning(ISensorData::Attitude), ISensor::GOOD);
    EXPECT_EQ(warning(ISensorData::Heading), ISensor::WRONG) << "silent for long while another came";
}

TEST_F(UDPSensorTest, badPacketsRenewNothing) {
    takeHeading(1.0, 100);
    Heading_Data next(2.0, 1);
    Bytes broken = packetOf(next, 250);
    broken[20] ^= 1;
    EXPECT_FALSE(take(broken));
    EXPECT_FALSE(takeHeading(3.0, 5)) << "the broken one moved the order on: 11 further is out of it";
    Heading_Data none(std::numeric_limits<double>::infinity(), 1);
    EXPECT_FALSE(take(packetOf(none, 251)));
    EXPECT_FALSE(take(packetOf(next, 251, ISensor::GOOD, 21)));
    EXPECT_FALSE(take(packetOf(next, 251, ISensor::GOOD, ISensorData::Attitude))) << "too short";
    Bytes liar = packetOf(next, 251);
    liar[8] = 200;
    EXPECT_FALSE(take(liar)) << "claims more than came";
    EXPECT_TRUE(take(liar + packetOf(next, 251))) << "and hides nothing behind it";
    EXPECT_EQ(heading(), 2.0);
}

TEST_F(UDPSensorTest, aRestartedSenderGetsThroughAfterAWhile) {
    takeHeading(1.0, 200);
    int dropped = 0;
    while (dropped < 100 && !takeHeading(2.0, 0))
        ++dropped;
    EXPECT_EQ(dropped, 27);
    EXPECT_EQ(heading(), 2.0);
}

TEST_F(UDPSensorTest, aTakenPortIsWrong) {
    UDPSensorOptions taken = options();
    taken.bindPort = sensor.getBoundPort();
    ASSERT_GT(taken.bindPort, 0);
    UDPSensor second(&rig.manager, taken, factory.getSupportedDataTypes());
    EXPECT_FALSE(second.Update());
    EXPECT_FALSE(second.isConnected());
    EXPECT_EQ(second.getWarning(ISensorData::Heading), ISensor::WRONG);
}

TEST_F(UDPSensorTest, theFactoryTakesDefaultsForWhatCannotBe) {
    IniFile ini;
    ini.setFromString("[S1]\nbindPort=70000\nbufferSize=-5\ntimeOut=abc\nipv6=1\n");
    factory.loadSetupFromIni(&ini, "S1");
    auto made = factory.Create();
    EXPECT_EQ(made->getSensorDetails(), "Timeout: 500 ms\n");
    EXPECT_EQ(made->getName(), "UDPSensor");
    EXPECT_EQ(made->getSupportedDataTypes().size(), 21u);
}

/// A forwarder and a sensor with the network of this computer between them.
struct LinkTest : testing::TestWithParam<bool> {
    ManagerRig rig;
    FakeSensor source;
    UDPSensorFactory factory{&rig.manager, nullptr};
    std::unique_ptr<UDPSensor> sensor;
    std::unique_ptr<UDPForwarder> forwarder;

    void SetUp() override {
        rig.clock.advance(100.0);
        UDPSensorOptions in;
        in.ipv6 = GetParam();
        in.bindPort = 0;
        sensor = std::make_unique<UDPSensor>(&rig.manager, in, factory.getSupportedDataTypes());
        sensor->Update();
        UDPForwarderOptions out;
        out.ipv6 = GetParam();
        out.broadcast = false;
        out.targetAddress = GetParam() ? "::1" : "127.0.0.1";
        out.targetPort = sensor->getBoundPort();
        std::map<ISensorData::Type, ISensor*> sources;
        for (int type = 0; type < ISensorData::TypeCount; ++type)
            sources[static_cast<ISensorData::Type>(type)] = &source;
        forwarder = std::make_unique<UDPForwarder>(&rig.host, out, sources);
        source.hasNews = true;
        forwarder->forward(&source);
    }
    bool arrives() {
        for (int i = 0; i < 1000; ++i) {
            if (sensor->Update())
                return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        return false;
    }
    bool sendAfter(double seconds) {
        rig.clock.advance(seconds);
        forwarder->forward(&source);
        return arrives();
    }
};

TEST_P(LinkTest, recordsArriveAsTheyWereSent) {
    EXPECT_EQ(rig.host.texts(),
              (std::vector<std::string>{"A network connection (e.g. via a wifi hotspot) is required for UDP."}));
    source.level = ISensor::MAYBE_WRONG;
    auto* heading = source.put<Heading_Data>(ISensorData::Heading, 90.0, 5u);
    auto* traffic = source.put<Traffic_Data>(ISensorData::Traffic);
    for (uint32_t address = 0; address < 400; ++address) { // larger than the first buffer
        traffic->elements[address] = std::make_unique<TrafficElement>();
        traffic->elements[address]->icaoAddress = address;
    }
    for (int step = 0; step < 300; ++step) {
        heading->value = step;
        ASSERT_TRUE(sendAfter(0.040)) << step;
        // Small and large record are two datagrams.
        for (int i = 0; i < 1000 && sensor->getWarning(ISensorData::Traffic) == ISensor::WRONG; ++i)
            sensor->Update();
        ASSERT_EQ(formOf(*sensor->getData(ISensorData::Heading)), formOf(*heading)) << step;
    }
    EXPECT_EQ(formOf(*sensor->getData(ISensorData::Traffic)), formOf(*traffic));
    EXPECT_EQ(sensor->getWarning(ISensorData::Heading), ISensor::MAYBE_WRONG);
    forwarder.reset();
    EXPECT_TRUE(rig.host.texts().empty());
}

TEST_P(LinkTest, aSensorIsSentOnceAPeriodUnlessPausedAndNothingIsAllocated) {
    source.put<Heading_Data>(ISensorData::Heading);
    ASSERT_TRUE(sendAfter(1.0));
    const auto sends = [&](double seconds) {
        rig.clock.advance(seconds);
        const AllocationCounter allocations;
        forwarder->forward(&source);
        EXPECT_EQ(allocations.count(), 0u);
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return sensor->Update();
    };
    EXPECT_FALSE(sends(0.037)) << "exactly the period";
    EXPECT_TRUE(sends(0.001));
    forwarder->setPause(true);
    EXPECT_FALSE(sends(1.0));
    forwarder->setPause(false);
    source.hasNews = false;
    EXPECT_FALSE(sends(1.0));
}

/// Copies that send to each other must not keep a record alive between them when its source has gone.
TEST_P(LinkTest, aRecordOfAnotherCopyGoesOnOnceAndOnesOwnIsNotHeard) {
    TemporaryFolder folder;
    rig.host.configPath = folder.path("config.ini");
    auto* heading = source.put<Heading_Data>(ISensorData::Heading, 1.0, 5u);
    auto* localizer = source.put<LocGs_Data>(ISensorData::Localizer, true);
    localizer->amplitude90Hz = 0.3f;
    UDPForwarderOptions out;
    out.ipv6 = GetParam();
    out.broadcast = false;
    out.targetAddress = GetParam() ? "::1" : "127.0.0.1";
    out.targetPort = sensor->getBoundPort();
    auto made =
        std::make_unique<UDPForwarder>(&rig.host, out,
                                       std::map<ISensorData::Type, ISensor*>{{ISensorData::Heading, sensor.get()},
                                                                             {ISensorData::Localizer, sensor.get()}});
    UDPForwarder* relay = made.get();
    relay->forward(sensor.get());
    const auto comesBack = [&] {
        rig.clock.advance(0.040);
        relay->forward(sensor.get());
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return sensor->Update();
    };
    ASSERT_TRUE(sendAfter(0.040));
    EXPECT_TRUE(comesBack()) << "as it would to another copy";
    for (int i = 0; i < 30; ++i)
        comesBack();
    EXPECT_FALSE(comesBack()) << "neither the one with a time stamp nor the one without goes round";
    heading->timeStamp = 6;
    ASSERT_TRUE(sendAfter(0.040));
    EXPECT_TRUE(comesBack()) << "a new sample, and with it what has no time stamp";
    EXPECT_TRUE(sensor->lastTimeUpdated(ISensorData::Localizer));
    rig.manager.addSensorForwarder(0, std::move(made));
    heading->timeStamp = 7;
    ASSERT_TRUE(sendAfter(0.040));
    EXPECT_FALSE(comesBack()) << "sent by this program";
}

INSTANTIATE_TEST_SUITE_P(BothVersions, LinkTest, testing::Bool());

struct FakeWifi : IWifiAddresses {
    std::string getIpv4WifiBroadcastAddress() const override { return "192.168.7.255"; }
};

TEST(UDPForwarderFactory, restoresAForwarderOfTheDefaultSensors) {
    ManagerRig rig;
    FakeDialogs dialogs;
    FakeWifi wifi;
    rig.load("SensorCount=2\nD5=1\n[S1]\nFactoryIndex=0\n");
    UDPForwarderFactory factory(&rig.manager, &dialogs, &wifi);
    IniFile ini;
    ini.setFromString("[F0]\nBroadcast=0\nTargetAddress=127.0.0.1\n");
    UDPSensorOptions in;
    in.bindPort = 0;
    UDPSensorFactory sensors(&rig.manager, &dialogs);
    UDPSensor receiver(&rig.manager, in, sensors.getSupportedDataTypes());
    receiver.Update();
    ini.set("F0", "TargetPort", std::to_string(receiver.getBoundPort()));
    ASSERT_TRUE(factory.loadSetupFromIni(&ini, "F0"));
    auto forwarder = factory.Create();
    rig.sensor(1)->put<Heading_Data>(ISensorData::Heading);
    rig.sensor(1)->put<Heading_Data>(ISensorData::Altitude, 77.0, 1u);
    rig.sensor(1)->hasNews = true;
    rig.clock.advance(10.0);
    forwarder->forward(rig.sensor(1));
    forwarder->forward(rig.sensor(1));
    for (int i = 0; i < 1000 && !receiver.Update(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    EXPECT_TRUE(receiver.lastTimeUpdated(ISensorData::Altitude));
    EXPECT_FALSE(receiver.lastTimeUpdated(ISensorData::Heading)) << "its default is the NullSensor";
    factory.saveSetupToIni(&ini, "F1");
    EXPECT_EQ(ini.get("F1", "TargetAddress"), "127.0.0.1");
    EXPECT_EQ(ini.get("F1", "Broadcast"), "0");

    dialogs.onEdit = [](IniFile& document) { document.set("", "Broadcast", "1"); };
    ASSERT_TRUE(factory.setup());
    EXPECT_EQ(dialogs.networkOffers, 1);
    EXPECT_NE(factory.Create()->getName().find("192.168.7.255"), std::string::npos);
}

} // namespace
} // namespace skyvane
