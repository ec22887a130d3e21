#include "sensors/log/LogFileSensor.h"

#include "sensors/SensorFakes.h"
#include "sensors/TemporaryFolder.h"
#include "sensors/log/LogBytes.h"

#include <gtest/gtest.h>

#include <limits>

namespace skyvane {
namespace {

struct LogFileSensorTest : testing::Test {
    ManagerRig rig;
    TemporaryFolder folder;
    std::unique_ptr<LogFileSensor> sensor;

    void open(const LogBytes& log) {
        log.save(folder.path("flight.dat"));
        sensor = std::make_unique<LogFileSensor>(folder.path("flight.dat"), &rig.manager, ISensor::MAYBE_WRONG);
        sensor->Update();
    }
    /// 101 headings in 10 s, as many degrees as tenths of a second.
    void openHeadings() {
        LogBytes log;
        for (uint32_t i = 0; i <= 100; ++i)
            log.heading(7000 + 100 * i, i);
        open(log);
    }
    bool after(unsigned milliseconds) {
        rig.clock.advance(milliseconds / 1000.0);
        return sensor->Update();
    }
    double heading() {
        auto* record = static_cast<Heading_Data*>(sensor->getData(ISensorData::Heading));
        return record ? record->value : -1.0;
    }
    int resetKind() { return static_cast<Attitude_Data*>(sensor->getData(ISensorData::Attitude))->resetKind; }
};

TEST_F(LogFileSensorTest, playsInItsTimeAndSaysThatNothingIsReal) {
    openHeadings();
    ASSERT_EQ(rig.host.boxes.size(), 1u);
    EXPECT_EQ(rig.host.boxes[0].substr(0, 20), "A logfile is in use.");
    EXPECT_EQ(sensor->getName(), "LogFile: " + folder.path("flight.dat"));
    EXPECT_EQ(rig.manager.getPrimarySeekableSensor(), sensor.get());
    EXPECT_EQ(heading(), 0.0);
    EXPECT_FALSE(after(99));
    EXPECT_TRUE(after(2));
    EXPECT_EQ(heading(), 1.0);
    EXPECT_TRUE(sensor->lastTimeUpdated(ISensorData::Heading));
    EXPECT_FALSE(after(5));
    EXPECT_FALSE(sensor->lastTimeUpdated(ISensorData::Heading));
    rig.manager.setPlaybackSpeed(4.0f);
    EXPECT_TRUE(after(1000));
    EXPECT_EQ(heading(), 41.0);
    EXPECT_EQ(sensor->getWarning(ISensorData::Heading), ISensor::MAYBE_WRONG);
    EXPECT_EQ(rig.host.boxes.size(), 1u);
}

TEST_F(LogFileSensorTest, endsAtTheEndOrLoops) {
    openHeadings();
    after(60000);
    EXPECT_EQ(sensor->getPlayPosition(), 1.0f);
    rig.manager.setPlaybackLoop(true);
    after(3010);
    EXPECT_FLOAT_EQ(sensor->getPlayPosition(), 0.301f) << "from the end on around";
    EXPECT_EQ(heading(), 30.0);
    rig.manager.setPlaybackSpeed(std::numeric_limits<float>::quiet_NaN());
    after(1000);
    rig.manager.setPlaybackSpeed(-3.0f);
    after(1000);
    EXPECT_FLOAT_EQ(sensor->getPlayPosition(), 0.301f);
    rig.manager.setPlaybackSpeed(std::numeric_limits<float>::infinity());
    after(1000);
    EXPECT_LE(sensor->getPlayPosition(), 1.0f);
}

TEST_F(LogFileSensorTest, seeksForwardAndBack) {
    openHeadings();
    rig.manager.setPlaybackState(SensorManager::PLAYBACK_PAUSE);
    sensor->setPlayPosition(0.5f);
    EXPECT_TRUE(after(36));
    EXPECT_EQ(heading(), 50.0);
    EXPECT_EQ(sensor->getPlayPosition(), 0.5f);
    sensor->setPlayPosition(0.25f);
    after(36);
    after(36);
    EXPECT_NEAR(heading(), 25.0, 0.6);
    for (const float wrong : {-1.0f, std::numeric_limits<float>::quiet_NaN()}) {
        sensor->setPlayPosition(wrong);
        EXPECT_EQ(sensor->getPlayPosition(), 0.0f);
    }
    sensor->setPlayPosition(7.0f);
    EXPECT_EQ(sensor->getPlayPosition(), 1.0f);
    rig.manager.setPlaybackState(SensorManager::PLAYBACK_STOP);
    after(36);
    EXPECT_EQ(sensor->getPlayPosition(), 0.0f);
    EXPECT_EQ(heading(), 0.0);
}

TEST_F(LogFileSensorTest, recordsOfOneTimeArriveTogether) {
    LogBytes log;
    for (uint32_t i = 0; i <= 100; ++i)
        log.heading(100 * i, i).attitude(100 * i, 0).record(100 * i, 4, Bytes(20));
    open(log);
    rig.manager.setPlaybackState(SensorManager::PLAYBACK_PAUSE);
    for (const float place : {0.33f, 0.66f, 0.9f}) {
        sensor->setPlayPosition(place);
        EXPECT_TRUE(after(36));
        for (const ISensorData::Type type : {ISensorData::Heading, ISensorData::Attitude, ISensorData::Position})
            EXPECT_TRUE(sensor->lastTimeUpdated(type)) << place;
        EXPECT_EQ(heading(), static_cast<int>(100 * place));
    }
}

TEST_F(LogFileSensorTest, noResetIsSkippedInAFastReplay) {
    LogBytes log;
    for (uint32_t i = 0; i <= 1000; ++i)
        log.attitude(100 * i, i == 3 || i == 400 || i == 401 || i == 1000 ? 2 : 0);
    open(log);
    rig.manager.setPlaybackSpeed(100.0f);
    int resets = 0;
    for (int frame = 0; frame < 40; ++frame)
        if (after(500) && resetKind() == 2)
            ++resets;
    EXPECT_EQ(resets, 4);
    rig.manager.setPlaybackLoop(true);
    int backToStart = 0;
    for (int frame = 0; frame < 40; ++frame)
        if (after(500) && resetKind() == 1)
            ++backToStart;
    EXPECT_GE(backToStart, 1) << "the loop starts over";
}

TEST_F(LogFileSensorTest, goingBackStartsOverInsteadOfMeetingLaterResets) {
    LogBytes log;
    for (uint32_t i = 0; i <= 100; ++i)
        log.attitude(100 * i, i == 60 ? 3 : 0).heading(100 * i, i);
    open(log);
    after(5001);
    ASSERT_EQ(heading(), 50.0);
    rig.manager.setPlaybackState(SensorManager::PLAYBACK_PAUSE);
    sensor->setPlayPosition(0.2f);
    EXPECT_TRUE(after(36));
    EXPECT_EQ(resetKind(), 1) << "estimators start over";
    EXPECT_TRUE(after(36));
    EXPECT_EQ(heading(), 20.0);
    EXPECT_EQ(resetKind(), 0);
    sensor->setPlayPosition(0.9f);
    after(36);
    EXPECT_EQ(resetKind(), 3) << "forward, the reset on the way isn't skipped";
    EXPECT_EQ(heading(), 60.0);
}

TEST_F(LogFileSensorTest, typesThatFallSilentAreNotOfferedButAPauseKeepsThem) {
    LogBytes log;
    log.attitude(0, 0);
    for (uint32_t i = 0; i <= 200; ++i)
        log.heading(100 * i, i);
    open(log);
    EXPECT_TRUE(sensor->isDataTypeSupported(ISensorData::Attitude));
    EXPECT_FALSE(sensor->isDataTypeSupported(ISensorData::Altitude)) << "never came";
    EXPECT_EQ(sensor->getData(ISensorData::Altitude), nullptr);
    after(3000);
    rig.manager.setPlaybackState(SensorManager::PLAYBACK_PAUSE);
    for (int second = 0; second < 60; ++second)
        after(1000);
    EXPECT_TRUE(sensor->isDataTypeSupported(ISensorData::Attitude));
    rig.manager.setPlaybackState(SensorManager::PLAYBACK_PLAY);
    for (int i = 0; i < 51; ++i)
        after(100);
    EXPECT_FALSE(sensor->isDataTypeSupported(ISensorData::Attitude));
    EXPECT_EQ(sensor->getWarning(ISensorData::Attitude), ISensor::WRONG);
    EXPECT_TRUE(sensor->isDataTypeSupported(ISensorData::Heading));
    EXPECT_EQ(sensor->getSupportedDataTypes().size(), 21u);
}

TEST_F(LogFileSensorTest, badRecordsArePassedOver) {
    LogBytes log;
    log.heading(0, 1.0);
    for (uint32_t i = 1; i < 50; ++i)
        log.record(100 * i, 99, Bytes(8)).record(100 * i, 2, Bytes(5)).heading(100 * i, i);
    Heading_Data none(std::numeric_limits<double>::quiet_NaN(), 0);
    log.record(5000, 2, formOf(none)).record(5100, 77, Bytes(3)).heading(5200, 52.0).heading(5400, 54.0);
    open(log);
    after(1001);
    EXPECT_EQ(heading(), 10.0);
    after(3995);
    EXPECT_EQ(heading(), 10.0) << "no number is no heading";
    EXPECT_FALSE(after(100));
    after(110);
    EXPECT_EQ(heading(), 52.0);
}

TEST_F(LogFileSensorTest, aSeekShowsTheMomentItLandsOnAlone) {
    LogBytes log;
    for (uint32_t i = 0; i <= 600; ++i) {
        log.heading(100 * i, i);
        if (i % 10 == 5 && i < 300)
            log.attitude(100 * i, 0);
    }
    open(log);
    rig.manager.setPlaybackState(SensorManager::PLAYBACK_PAUSE);
    const auto stampAt = [&](double seconds) {
        sensor->setPlayPosition(static_cast<float>(seconds / 60.0));
        for (int frame = 0; frame < 3; ++frame) // going back takes two
            after(36);
        EXPECT_NEAR(heading(), 10.0 * seconds, 1.0);
        const auto* record = static_cast<Attitude_Data*>(sensor->getData(ISensorData::Attitude));
        return record ? static_cast<int>(record->timeStamp) : -1;
    };
    EXPECT_EQ(stampAt(20.2), 19500);
    EXPECT_EQ(stampAt(32.0), 29500) << "not yet silent for 5 seconds";
    EXPECT_EQ(stampAt(50.0), -1) << "what it was before the seek isn't of this moment";
    EXPECT_EQ(stampAt(10.2), 9500);
}

TEST_F(LogFileSensorTest, emptyAndMissingLogsPlayNothing) {
    open(LogBytes());
    EXPECT_FALSE(sensor->Update());
    EXPECT_EQ(sensor->getPlayPosition(), 0.0f);
    sensor->setPlayPosition(0.5f);
    EXPECT_EQ(sensor->getPlayPosition(), 0.0f);
    LogFileSensor missing(folder.path("none.dat"), &rig.manager, ISensor::GOOD);
    EXPECT_FALSE(missing.Update());
    EXPECT_FALSE(missing.isDataTypeSupported(ISensorData::Heading));
    LogBytes one;
    one.heading(0, 1.0).heading(0, 2.0);
    open(one);
    rig.manager.setPlaybackLoop(true);
    after(100);
    EXPECT_EQ(heading(), 2.0);
    EXPECT_EQ(sensor->getPlayPosition(), 0.0f);
}

} // namespace
} // namespace skyvane
