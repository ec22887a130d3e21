#include "sensors/FakeDialogs.h"
#include "sensors/SensorFakes.h"
#include "sensors/TemporaryFolder.h"
#include "sensors/log/LogFileSensorFactory.h"
#include "sensors/profiles/CustomConfig.h"
#include "sensors/profiles/ExtGPSConfig.h"
#include "sensors/profiles/FlightSimulatorConfig.h"
#include "sensors/profiles/GLD90WeatherTraffic.h"
#include "sensors/profiles/InternalGNSSConfig.h"
#include "sensors/profiles/InternalSensorConfig.h"
#include "sensors/profiles/LogFileConfig.h"
#include "sensors/profiles/ProfileQuestion.h"
#include "sensors/profiles/TalosConfig.h"
#include "sensors/profiles/VelmarAvionicsTarnlinkConfig.h"
#include "sensors/simulators/FlightGearSensorFactory.h"
#include "sensors/simulators/XPlaneSensorFactory.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace skyvane {
namespace {

using testing::HasSubstr;

class NamedFactory : public NoSetupGUISensorFactory {
public:
    using NoSetupGUISensorFactory::NoSetupGUISensorFactory;
    std::unique_ptr<ISensor> Create() override { return std::make_unique<FakeSensor>(); }
};

/// The program's factories, in its order; the estimator and the GDL 90 receiver where they are asked for.
struct ProfilesTest : testing::Test {
    ProfilesTest() {
        addStandardDataFactories(manager);
        manager.setBatteryFolder("/nowhere");
        document.set("", "SensorCount", "3");
        document.set("", "D15", "2");
        document.set("", "keep", "this");
        document.set("S1", "FactoryName", "Old");
        document.set("S2", "FactoryName", "Older");
    }
    void addFactories(bool withEstimator, bool withGdl90) {
        manager.addSensorFactory(
            withEstimator
                ? std::make_unique<NamedFactory>(
                      "FlightStateIMU", std::vector<ISensorData::Type>{ISensorData::Position, ISensorData::Traffic})
                : nullptr);
        manager.addSensorFactory(std::make_unique<LogFileSensorFactory>(&manager, &dialogs, folder.path() + "/"));
        manager.addSensorFactory(std::make_unique<FlightGearSensorFactory>(&manager));
        manager.addSensorFactory(std::make_unique<XPlaneSensorFactory>(&manager));
        manager.addSensorFactory(withGdl90
                                     ? std::make_unique<NamedFactory>(
                                           GDL90Config::Factory,
                                           std::vector<ISensorData::Type>{ISensorData::Traffic, ISensorData::UATUplink})
                                     : nullptr);
    }
    ProfileParts parts(bool hasAllSensors = true) {
        return {&manager, &dialogs, {hasAllSensors, hasAllSensors, hasAllSensors, hasAllSensors}};
    }
    template <class Profile>
    bool choose(bool hasAllSensors = true) {
        Profile profile(parts(hasAllSensors));
        EXPECT_FALSE(profile.getName().empty() || profile.getDescription().empty());
        return profile.OnConfigChosen(&document);
    }
    std::string get(const std::string& section, const std::string& key) {
        return document.isAvailable(section, key) ? document.get(section, key) : "-";
    }

    TemporaryFolder folder;
    FakeHost host;
    FakeDialogs dialogs;
    SensorManager manager{&host};
    IniFile document;
};

TEST_F(ProfilesTest, withoutTheEstimatorAProfileSaysSoAndChangesNothing) {
    addFactories(false, false);
    const std::string before = document.toString();
    dialogs.choice = 1;
    EXPECT_FALSE(choose<InternalSensorConfig>() || choose<InternalGNSSConfig>() || choose<ExtGPSConfig>() ||
                 choose<GLD90WeatherTraffic>() || choose<TalosConfig>() || choose<GDL90Config>() ||
                 choose<VelmarAvionicsTarnlinkConfig>());
    EXPECT_EQ(document.toString(), before);
    ASSERT_EQ(dialogs.told.size(), 7u);
    for (const std::string& text : dialogs.told)
        EXPECT_THAT(text, HasSubstr("doesn't have yet.\nNothing has been changed."));
    EXPECT_FALSE(InternalSensorConfig(parts()).getObstacle().empty());
    EXPECT_TRUE(FlightSimulatorConfig(parts()).getObstacle().empty());
}

TEST_F(ProfilesTest, theEstimatorGetsItsModeAndItsKeys) {
    addFactories(true, false);
    ASSERT_TRUE(choose<InternalSensorConfig>());
    EXPECT_EQ(get("", "SensorCount"), "2");
    EXPECT_EQ(get("S1", "FactoryName"), "FlightStateIMU");
    EXPECT_EQ(get("S1", "FactoryIndex"), "0");
    EXPECT_EQ(get("S1", "configMode"), "INTERNAL_AHRS");
    EXPECT_EQ(get("S1", "AngularSigma"), "1.5");
    EXPECT_EQ(get("S1", "autoCalibRecoveryTime"), "36000");
    EXPECT_FALSE(document.isSectionAvailable("S2"));
    EXPECT_EQ(get("", "D4"), "1");
    EXPECT_EQ(get("", "D15"), "1");
    EXPECT_EQ(get("", "D1"), "0");
    EXPECT_EQ(get("", "keep"), "this");
    const std::string once = document.toString();
    ASSERT_TRUE(choose<InternalSensorConfig>());
    EXPECT_EQ(document.toString(), once);
    ASSERT_TRUE(choose<InternalGNSSConfig>(false));
    EXPECT_EQ(get("S1", "configMode"), "INTERNAL_GNSS_ONLY");
    EXPECT_FALSE(choose<VelmarAvionicsTarnlinkConfig>()) << "there is no link to it";
}

TEST_F(ProfilesTest, attitudeNeedsAllSensorsOfTheDevice) {
    addFactories(true, true);
    const std::string before = document.toString();
    EXPECT_FALSE(handleSensors(dialogs, {true, false, true, false}));
    EXPECT_EQ(dialogs.told.back(),
              "Error: A gyroscope, accelerometer, magnetometer and GPS/GNSS receiver is required.\n"
              "Accelerometer is missing.\nGNSS/GPS is missing.\n");
    dialogs.choice = 0;
    EXPECT_FALSE(choose<InternalSensorConfig>(false) || choose<ExtGPSConfig>(false) ||
                 choose<GLD90WeatherTraffic>(false));
    dialogs.choice = 2; // "Cancel"
    EXPECT_FALSE(choose<ExtGPSConfig>() || choose<GLD90WeatherTraffic>() || choose<FlightSimulatorConfig>());
    dialogs.choice = -1; // no answer
    EXPECT_FALSE(choose<ExtGPSConfig>() || choose<GLD90WeatherTraffic>() || choose<FlightSimulatorConfig>());
    dialogs.choice = 1;
    dialogs.accept = false; // no Bluetooth device
    EXPECT_FALSE(choose<ExtGPSConfig>());
    EXPECT_EQ(document.toString(), before);
    dialogs.accept = true;
    ASSERT_TRUE(choose<ExtGPSConfig>(false));
    EXPECT_EQ(get("S1", "configMode"), "EXT_GNSS_ONLY");
    dialogs.choice = 0;
    ASSERT_TRUE(choose<ExtGPSConfig>());
    EXPECT_EQ(get("S1", "configMode"), "EXT_GNSS_AND_AHRS");
}

TEST_F(ProfilesTest, trafficAndWeatherAndOnlyTheyComeFromTheBox) {
    addFactories(true, true);
    dialogs.choice = 1;
    ASSERT_TRUE(choose<GLD90WeatherTraffic>(false));
    EXPECT_EQ(get("", "SensorCount"), "3");
    EXPECT_EQ(get("S1", "configMode"), "INTERNAL_GNSS_ONLY");
    EXPECT_EQ(get("S2", "FactoryName") + get("S2", "port") + get("S2", "flavor"), "GDL90 compatible device4000Generic");
    for (int type = 0; type < ISensorData::TypeCount; ++type)
        EXPECT_EQ(get("", "D" + std::to_string(type)), type == 15 || type == 18 ? "2" : type == 4 ? "1" : "0") << type;
    manager.loadSensorSettingsFromIni(&document, false);
    EXPECT_EQ(manager.getDefaultSensor(ISensorData::Traffic), manager.getSensorInterface(2));
    EXPECT_EQ(manager.getDefaultSensor(ISensorData::Position), manager.getSensorInterface(1));
    ASSERT_TRUE(choose<TalosConfig>());
    EXPECT_EQ(get("S1", "flavor") + get("", "D18"), "Talos1");
    ASSERT_TRUE(choose<GDL90Config>());
    EXPECT_EQ(get("S1", "flavor") + get("", "SensorCount"), "Generic2");
    EXPECT_FALSE(document.isSectionAvailable("S2"));
}

TEST_F(ProfilesTest, aSimulatorOrALogReplacesAllSensors) {
    addFactories(false, false);
    dialogs.choice = 1;
    ASSERT_TRUE(choose<FlightSimulatorConfig>());
    EXPECT_EQ(get("S1", "FactoryName") + get("S1", "FactoryIndex"), "XPlane Flight Simulator3");
    EXPECT_EQ(get("", "D1") + get("", "D18"), "10");
    dialogs.choice = 0;
    ASSERT_TRUE(choose<FlightSimulatorConfig>());
    EXPECT_EQ(get("S1", "FactoryName"), "FlightGear Flight Simulator");

    EXPECT_FALSE(choose<LogFileConfig>()) << "there is no log";
    EXPECT_EQ(get("S1", "FactoryName"), "FlightGear Flight Simulator");
    folder.write("Flight.dat", "");
    std::string proposed;
    dialogs.onEdit = [&proposed](IniFile& settings) {
        proposed = settings.isAvailable("", "fileName") ? settings.get("", "fileName") : "";
        settings.set("", "fileName", "Flight.dat");
        settings.set("", "level", "GOOD");
    };
    dialogs.accept = false;
    const std::string before = document.toString();
    EXPECT_FALSE(choose<LogFileConfig>());
    EXPECT_EQ(document.toString(), before);
    dialogs.accept = true;
    ASSERT_TRUE(choose<LogFileConfig>());
    EXPECT_EQ(get("S1", "FactoryName") + get("S1", "fileName") + get("S1", "level"), "LogFileSensorFlight.datGOOD");
    EXPECT_EQ(get("", "SensorCount") + get("", "D20"), "21");
    EXPECT_EQ(proposed, "");
    ASSERT_TRUE(choose<LogFileConfig>());
    EXPECT_EQ(proposed, "Flight.dat") << "the last choice is the proposal";
}

TEST_F(ProfilesTest, theScreenComesBeforeTheSensorsAndItsChoiceIsLoaded) {
    addFactories(false, false);
    manager.addSensorConfigOverride(std::make_unique<CustomConfig>(&dialogs));
    size_t offered = 0;
    host.onChoose = [&](IniFile& ini, const std::vector<std::unique_ptr<IConfigOverride>>& profiles) {
        offered = profiles.size();
        manager.Update(); // a frame of the screen
        EXPECT_EQ(manager.getSensorInterfaceCount(), 1);
        ini.set("", "SensorCount", "1");
    };
    manager.loadSensorSettingsFromIni(&document, true);
    EXPECT_EQ(offered, 1u);
    EXPECT_EQ(manager.getSensorInterfaceCount(), 1);
    dialogs.onEdit = [](IniFile& ini) { ini.set("", "D0", "7"); };
    CustomConfig custom(&dialogs);
    EXPECT_TRUE(custom.OnConfigChosen(&document));
    EXPECT_EQ(get("", "D0"), "7");
}

TEST_F(ProfilesTest, aLyingCountOfSensorsCostsNothing) {
    document.set("", "SensorCount", "2000000000");
    deleteAllSensorConfigs(&document);
    EXPECT_EQ(get("", "SensorCount"), "1");
    EXPECT_FALSE(document.isSectionAvailable("S1") || document.isSectionAvailable("S2"));
}

TEST(ProfileQuestion, isAskedUnlessDocumentOrEnvironmentSayNo) {
    const char* former = std::getenv("SKYVANE_CHOOSE_PROFILE");
    const std::string kept = former ? former : "";
    ::unsetenv("SKYVANE_CHOOSE_PROFILE");
    IniFile config;
    EXPECT_TRUE(asksForProfile(config));
    config.set("", "chooseProfile", "0");
    EXPECT_FALSE(asksForProfile(config));
    ::setenv("SKYVANE_CHOOSE_PROFILE", "1", 1);
    EXPECT_TRUE(asksForProfile(config));
    ::unsetenv("SKYVANE_CHOOSE_PROFILE");
    if (former)
        ::setenv("SKYVANE_CHOOSE_PROFILE", kept.c_str(), 1);
}

} // namespace
} // namespace skyvane
