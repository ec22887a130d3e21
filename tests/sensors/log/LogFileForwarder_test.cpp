#include "sensors/log/LogFileForwarder.h"

#include "gui/layout/EditorSchema.h"
#include "sensors/FakeDialogs.h"
#include "sensors/SensorFakes.h"
#include "sensors/TemporaryFolder.h"
#include "sensors/log/LogBytes.h"
#include "sensors/log/LogFileForwarderFactory.h"
#include "sensors/log/LogFileSensor.h"
#include "sensors/log/LogFileSensorFactory.h"
#include "sensors/log/LogNames.h"
#include "sensors/records/Raw_Data.h"
#include "sensors/records/Traffic_Data.h"
#include "sensors/records/UATUplink_Data.h"
#include "support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <cmath>

namespace skyvane {
namespace {

struct LogFileForwarderTest : testing::Test {
    ManagerRig rig;
    TemporaryFolder folder;
    std::string path = folder.path("flight.dat");
    FakeSensor sensor;

    std::map<ISensorData::Type, ISensor*> all(ISensor* from) {
        std::map<ISensorData::Type, ISensor*> sources;
        for (int type = 0; type < ISensorData::TypeCount; ++type)
            sources[static_cast<ISensorData::Type>(type)] = from;
        return sources;
    }
};

TEST_F(LogFileForwarderTest, writesWhatWasRenewedAtMostOnceAPeriod) {
    rig.clock.advance(10.0005); // half a millisecond keeps the sums of decimals from rounding down
    auto* heading = sensor.put<Heading_Data>(ISensorData::Heading, 1.0, 1u);
    sensor.hasNews = true;
    {
        LogFileForwarder log(path, all(&sensor));
        EXPECT_FALSE(log.fail());
        EXPECT_EQ(log.getName(), "LogFileForwarder: " + path);
        const auto forwardAfter = [&](double seconds, double value) {
            rig.clock.advance(seconds);
            heading->value = value;
            log.forward(&sensor);
        };
        forwardAfter(0.020, 2.0); // exactly the period: not yet
        forwardAfter(0.001, 3.0);
        log.setPause(true);
        forwardAfter(0.100, 4.0);
        log.setPause(false);
        sensor.hasNews = false;
        forwardAfter(0.100, 5.0);
        sensor.hasNews = true;
        forwardAfter(0.100, 6.0);
        FakeSensor stranger;
        log.forward(&stranger);
    }
    LogBytes wanted;
    const auto record = [&](uint32_t timeMs, double value) {
        Heading_Data written(value, 1);
        wanted.record(timeMs, ISensorData::Heading, formOf(written));
    };
    record(10000, 1.0);
    record(10021, 3.0);
    record(10321, 6.0);
    Bytes written = LogBytes::load(path);
    ASSERT_GT(written.size(), wanted.size());
    EXPECT_NE(written[4], 0) << "the end wrote the index";
    written.resize(wanted.size());
    std::fill(written.begin() + 4, written.begin() + 8, uint8_t{0});
    EXPECT_EQ(written, wanted.bytes());
}

TEST_F(LogFileForwarderTest, anUplinkIsWrittenInTheFrameThatHasIt) {
    rig.clock.advance(10.0005);
    sensor.put<Heading_Data>(ISensorData::Heading);
    auto* uplinks = sensor.put<UATUplink_Data>(ISensorData::UATUplink);
    sensor.hasNews = true;
    {
        LogFileForwarder log(path, all(&sensor));
        for (uint8_t frame = 1; frame <= 4; ++frame) {
            rig.clock.advance(0.006);
            uplinks->messages = {{frame}};
            log.forward(&sensor);
        }
    }
    LogFile log(path);
    std::map<ISensorData::Type, int> counts;
    LogFile::Record record;
    for (size_t i = 0; i < log.index().samples.size(); ++i)
        if (log.read(i, record))
            ++counts[record.type];
    EXPECT_EQ(counts[ISensorData::UATUplink], 5);
    EXPECT_EQ(counts[ISensorData::Heading], 2);
}

TEST_F(LogFileForwarderTest, aLogThatPlaysIsNotRecordedOver) {
    LogBytes log;
    log.heading(0, 12.0);
    log.save(path);
    LogFile playing(path);
    const Bytes before = LogBytes::load(path);
    {
        LogFileForwarder over(path, all(&sensor), &rig.host);
        EXPECT_TRUE(over.fail());
        EXPECT_EQ(rig.host.texts().size(), 1u) << "the pilot is told";
    }
    EXPECT_TRUE(rig.host.texts().empty());
    EXPECT_EQ(LogBytes::load(path), before);
}

TEST_F(LogFileForwarderTest, aFileThatCannotBeMadeHarmsNothing) {
    sensor.put<Heading_Data>(ISensorData::Heading);
    sensor.hasNews = true;
    LogFileForwarder log(folder.path("none/flight.dat"), all(&sensor));
    EXPECT_TRUE(log.fail());
    rig.clock.advance(1.0);
    log.forward(&sensor);
    EXPECT_FALSE(std::filesystem::exists(folder.path("none")));
}

TEST_F(LogFileForwarderTest, aFrameAllocatesNothing) {
    sensor.put<Attitude_Data>(ISensorData::Attitude);
    auto* traffic = sensor.put<Traffic_Data>(ISensorData::Traffic);
    for (uint32_t address = 0; address < 100; ++address)
        traffic->elements[address] = std::make_unique<TrafficElement>();
    sensor.hasNews = true;
    LogFileForwarder log(path, all(&sensor));
    for (int frame = 0; frame < 20; ++frame) {
        rig.clock.advance(0.036);
        const AllocationCounter allocations;
        log.forward(&sensor);
        EXPECT_TRUE(frame == 0 || allocations.count() == 0) << frame;
    }
}

/// Recorded, played with the clock stepped through the recorded times and recorded again, a flight is the same, byte
/// for byte; but for its last records, which no play reaches.
TEST_F(LogFileForwarderTest, aFlightReplaysBitByBit) {
    rig.clock.advance(3.0005);
    sensor.hasNews = true;
    auto* heading = sensor.put<Heading_Data>(ISensorData::Heading);
    auto* attitude = sensor.put<Attitude_Data>(ISensorData::Attitude);
    auto* raw = sensor.put<Raw_Data>(ISensorData::Raw);
    auto* traffic = sensor.put<Traffic_Data>(ISensorData::Traffic);
    const auto fly = [&](int step) {
        heading->value = 360.0 * std::sin(0.013 * step) / 7.0;
        attitude->matrix = createYawMatrix(0.01 * step);
        attitude->resetKind = step == 50 ? 2 : 0;
        raw->text.assign(static_cast<size_t>(step % 13), '$');
        auto target = std::make_unique<TrafficElement>();
        const auto address = static_cast<uint32_t>(step);
        target->icaoAddress = address;
        traffic->elements[address] = std::move(target);
    };
    {
        LogFileForwarder log(path, all(&sensor));
        for (int step = 0; step < 200; ++step) {
            rig.clock.advance(0.030 + 0.001 * (step % 11));
            fly(step);
            log.forward(&sensor);
        }
    }
    const LogFile recorded(path);
    const auto& samples = recorded.index().samples;
    LogFileSensor player(path, &rig.manager, ISensor::GOOD);
    player.Update();
    {
        LogFileForwarder log(folder.path("again.dat"), all(&player));
        rig.clock.advance(0.001); // the play is a millisecond ahead of the records
        for (size_t i = 1; i < samples.size(); ++i) {
            rig.clock.advance((samples[i].timeMs - samples[i - 1].timeMs) / 1000.0);
            if (player.Update())
                log.forward(&player);
        }
    }
    LogFile again(folder.path("again.dat")), first(path);
    const size_t whole = static_cast<size_t>(
        std::count_if(samples.begin(), samples.end(), [&](auto& s) { return s.timeMs < samples.back().timeMs; }));
    // The first records were in place before the second recording began.
    const size_t skipped = static_cast<size_t>(
        std::count_if(samples.begin(), samples.end(), [&](auto& s) { return s.timeMs == samples.front().timeMs; }));
    ASSERT_EQ(again.index().samples.size(), whole - skipped);
    LogFile::Record a, b;
    for (size_t i = skipped; i < whole; ++i) {
        ASSERT_TRUE(first.read(i, a) && again.read(i - skipped, b));
        ASSERT_EQ(a.type, b.type) << i;
        ASSERT_EQ(Bytes(a.form, a.form + a.length), Bytes(b.form, b.form + b.length)) << i;
        EXPECT_EQ(samples[i].timeMs - samples[skipped].timeMs, again.index().samples[i - skipped].timeMs) << i;
    }
}

TEST(LogNames, stayInTheirFolder) {
    for (const char* good : {"Logfile", "a", "2026-06-01_EDDF"})
        EXPECT_TRUE(isLogName(good)) << good;
    for (const char* bad : {"", "..", "../x", "a/b", "a.b", "a b", "\xc3\xa4", "/etc/passwd"})
        EXPECT_FALSE(isLogName(bad)) << bad;
    EXPECT_FALSE(isLogName(std::string(101, 'a')));
    EXPECT_EQ(logPath("Logs/", "a.dat"), "Logs/a.dat");
    for (const char* bad : {"", "..", ".", "../config.ini", "/etc/passwd", "x/y.dat"})
        EXPECT_EQ(logPath("Logs/", bad), "") << bad;
}

struct LogFactoriesTest : testing::Test {
    ManagerRig rig;
    TemporaryFolder folder;
    FakeDialogs dialogs;
    std::string logs = folder.path() + "/";
};

TEST_F(LogFactoriesTest, theRecorderAsksUntilItHasAName) {
    rig.load("");
    folder.write("old.dat", "x");
    LogFileForwarderFactory factory(&rig.manager, &dialogs, logs);
    dialogs.names = {"../config", "", "flight-1"};
    ASSERT_TRUE(factory.setup());
    EXPECT_EQ(dialogs.lastQuestion,
              "Please enter the new logfile name (characters: 0-9,A-Z,a-z,-,_):\n(Folder: " + logs + ")");
    EXPECT_EQ(dialogs.told.size(), 2u);
    EXPECT_EQ(factory.Create()->getName(), "LogFileForwarder: " + logs + "flight-1.dat");
    dialogs.accept = false;
    dialogs.names = {"old"};
    EXPECT_FALSE(factory.setup()) << "not to be replaced, then cancelled";
    EXPECT_EQ(dialogs.confirmed.size(), 1u);
    EXPECT_FALSE(factory.loadSetupFromIni(nullptr, "F0"));
    EXPECT_EQ(factory.getName(), "LogFile");
}

TEST_F(LogFactoriesTest, thePlayerOffersTheLogsOfTheFolder) {
    LogFileSensorFactory factory(&rig.manager, &dialogs, logs);
    IniFile ini;
    EXPECT_FALSE(factory.setup(&ini, "S1")) << "no log yet";
    EXPECT_EQ(dialogs.told.size(), 1u);
    LogBytes log;
    log.heading(0, 12.0);
    log.save(folder.path("b,1.DaT"));
    folder.write("a.dat", "");
    folder.write("c.txt", "");
    dialogs.onEdit = [](IniFile& document) { document.set("", "fileName", "b,1.DaT"); };
    ASSERT_TRUE(factory.setup(&ini, "S1"));
    const auto rows = parseEditorSchema(dialogs.lastSchema);
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0].getAlternatives(), (std::vector<std::wstring>{L"a.dat", L"b,1.DaT"}));
    EXPECT_EQ(rows[1].getAlternatives(), (std::vector<std::wstring>{L"WRONG", L"MAYBE_WRONG", L"GOOD"}));
    EXPECT_EQ(ini.get("S1", "fileName"), "b,1.DaT");
    ini.set("S1", "level", "GOOD");
    factory.loadSetupFromIni(&ini, "S1");
    auto sensor = factory.Create();
    sensor->Update();
    EXPECT_TRUE(sensor->isDataTypeSupported(ISensorData::Heading));
    EXPECT_EQ(sensor->getWarning(ISensorData::Heading), ISensor::GOOD);
    ini.set("S1", "fileName", "../" + folder.path("b,1.DaT").substr(folder.path().rfind('/') + 1));
    ini.set("S1", "level", "FINE");
    factory.loadSetupFromIni(&ini, "S1");
    sensor = factory.Create();
    EXPECT_FALSE(sensor->isDataTypeSupported(ISensorData::Heading)) << "outside the folder";
    EXPECT_EQ(sensor->getWarning(ISensorData::Heading), ISensor::WRONG);
}

} // namespace
} // namespace skyvane
