#include "sensors/SensorManager.h"

#include "chart/geodesy/Barometry.h"
#include "chart/geodesy/ChartPosition.h"
#include "sensors/SensorFakes.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/Pressure_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"

#include <cmath>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

using Texts = std::vector<std::string>;

constexpr char OneSensor[] = "SensorCount=2\nD1=1\nD2=1\nD4=1\nD5=1\nD7=1\nD10=1\nD11=1\n[S1]\nFactoryIndex=0\n";

TEST(SensorManager, standardRecordsHaveTheirTypesAndNames) {
    ManagerRig rig;
    const Texts names = {"GPS",
                         "Attitude",
                         "Heading",
                         "Acceleration",
                         "Position",
                         "Altitude",
                         "GroundSpeed",
                         "VerticalSpeed",
                         "TurnRate",
                         "AirSpeed",
                         "InsidePressure",
                         "OutsidePressure",
                         "InsideTemperature",
                         "OutsideTemperature",
                         "Raw",
                         "Traffic",
                         "Localizer",
                         "Glideslope",
                         "UAT Uplink",
                         "Angle of Attack",
                         "True and Magnetic Heading"};
    for (int number = 0; number < ISensorData::TypeCount; ++number) {
        const auto type = static_cast<ISensorData::Type>(number);
        EXPECT_EQ(rig.manager.createSensorData(type)->getType(), type);
        EXPECT_EQ(rig.manager.getSensorDataFactory(type)->getName(), names[static_cast<size_t>(number)]);
    }
    EXPECT_EQ(rig.manager.createSensorData(static_cast<ISensorData::Type>(21)), nullptr);
}

TEST(SensorManager, withoutSensorsTheNullSensorAnswersForEverything) {
    for (const char* config : {"", "SensorCount=0", "SensorCount=1", "SensorCount=-5", "SensorCount=x",
                               "SensorCount=4294967295", "SensorCount=99999999999\nForwarderCount=4000000000"}) {
        ManagerRig rig;
        rig.load(config);
        ASSERT_EQ(rig.manager.getSensorInterfaceCount(), 1) << config;
        for (int number = 0; number < ISensorData::TypeCount; ++number) {
            const auto type = static_cast<ISensorData::Type>(number);
            ISensor* sensor = rig.manager.getDefaultSensor(type);
            ASSERT_EQ(sensor, rig.manager.getSensorInterface(0));
            ASSERT_NE(sensor->getData(type), nullptr);
            EXPECT_EQ(sensor->getData(type)->getType(), type);
            EXPECT_EQ(sensor->getWarning(type), ISensor::WRONG);
        }
        rig.manager.Update();
        EXPECT_EQ(rig.manager.getDefaultSensorsWarningLevel(), ISensor::WRONG);
        EXPECT_EQ(rig.manager.getIndicatedAltitude(), 400.0);
    }
}

TEST(SensorManager, loadsWhatExistsAndSkipsWhatHasNoFactory) {
    ManagerRig rig;
    rig.load("SensorCount=4294967295\nD5=99\nD4=-1\nD2=2\nD1=3\nD0=rubbish\n"
             "[S1]\nFactoryIndex=0\n[S2]\nFactoryIndex=1\n[S3]\nFactoryIndex=7\n[S4]\nFactoryName=Fake\n"
             "[S5]\nFactoryIndex=0\n[S7]\nFactoryIndex=0\n");
    ASSERT_EQ(rig.manager.getSensorInterfaceCount(), 3); // S5 became sensor 2; S7 stands behind a gap
    EXPECT_EQ(rig.host.pumps, 2);
    ISensor* null = rig.manager.getSensorInterface(0);
    EXPECT_EQ(rig.manager.getDefaultSensor(ISensorData::Altitude), null);
    EXPECT_EQ(rig.manager.getDefaultSensor(ISensorData::Position), null);
    EXPECT_EQ(rig.manager.getDefaultSensor(ISensorData::Attitude), null);
    EXPECT_EQ(rig.manager.getDefaultSensor(ISensorData::GPS), null);
    EXPECT_EQ(rig.manager.getDefaultSensor(ISensorData::Heading), rig.sensor(2));
    EXPECT_EQ(rig.manager.getSensorInterface(3), nullptr);
    EXPECT_EQ(rig.manager.getSensorInterface(-1), nullptr);

    rig.sensor(2)->put<Heading_Data>(ISensorData::Heading);
    EXPECT_EQ(rig.manager.getSensorInterfaces(ISensorData::Heading),
              (std::vector<ISensor*>{null, rig.manager.getSensorInterface(2)}));
}

TEST(SensorManager, loadingAgainStartsAnew) {
    ManagerRig rig;
    rig.load(OneSensor);
    rig.manager.startSimulation(ChartPosition(1, 2), 3, 4);
    rig.load("");
    EXPECT_EQ(rig.manager.getSensorInterfaceCount(), 1);
    EXPECT_FALSE(rig.manager.isSimulationActive());
    EXPECT_EQ(rig.manager.getDefaultSensor(ISensorData::Altitude), rig.manager.getSensorInterface(0));
}

TEST(SensorManager, freshSensorsReachEveryForwarderButTheNullSensorNone) {
    ManagerRig rig;
    rig.load("SensorCount=3\nForwarderCount=9\n[S1]\nFactoryIndex=0\n[S2]\nFactoryIndex=0\n"
             "[F0]\nForwarderFactory=0\n[F1]\nForwarderFactory=1\n[F2]\nForwarderFactory=5\n"
             "[F3]\nForwarderFactory=0\n");
    ASSERT_EQ(rig.manager.getSensorForwarderCount(), 2);
    rig.sensor(2)->hasNews = true;
    rig.manager.Update();
    EXPECT_EQ(rig.forwarded, (std::vector<ISensor*>(2, rig.sensor(2))));
    EXPECT_EQ(rig.sensor(1)->updates, 1);
}

TEST(SensorManager, popUpsComeOncePerWorsening) {
    ManagerRig rig;
    rig.load(std::string("showPopups=1\n") + OneSensor);
    FakeSensor* sensor = rig.sensor(1);
    const auto frame = [&](ISensor::WarningLevel level) {
        sensor->level = level;
        rig.manager.Update();
        EXPECT_EQ(rig.manager.getDefaultSensorsWarningLevel(), level);
        return rig.host.boxes.size();
    };
    EXPECT_EQ(frame(ISensor::GOOD), 0u);
    EXPECT_EQ(frame(ISensor::MAYBE_WRONG), 1u);
    EXPECT_EQ(frame(ISensor::MAYBE_WRONG), 1u);
    EXPECT_EQ(frame(ISensor::WRONG), 2u);
    EXPECT_EQ(frame(ISensor::MAYBE_WRONG), 2u);
    EXPECT_EQ(frame(ISensor::WRONG), 3u);
    EXPECT_EQ(rig.host.boxes,
              (Texts{"Sensor Warning: Default SensorData possibly wrong.", "Sensor Warning: Default SensorData wrong.",
                     "Sensor Warning: Default SensorData wrong."}));
    rig.load(OneSensor);
    rig.manager.Update();
    rig.sensor(1)->level = ISensor::WRONG;
    rig.manager.Update();
    EXPECT_EQ(rig.host.boxes.size(), 3u) << "pop-ups are off";
}

TEST(SensorManager, takesTheFirstPressureThatIsOne) {
    ManagerRig rig;
    rig.load(OneSensor);
    EXPECT_EQ(rig.manager.getMostSuitablePressureData(), nullptr);
    auto* outside = rig.sensor(1)->put<Pressure_Data>(ISensorData::OutsidePressure, 900.0, false, 0u);
    auto* inside = rig.sensor(1)->put<Pressure_Data>(ISensorData::InsidePressure, 950.0, true, 0u);
    EXPECT_EQ(rig.manager.getMostSuitablePressureData(), outside);
    for (const double none : {-300.0, 99.9, std::nan("")}) {
        outside->value = none;
        EXPECT_EQ(rig.manager.getMostSuitablePressureData(), inside);
    }
    inside->value = 99.9;
    EXPECT_EQ(rig.manager.getMostSuitablePressureData(), nullptr);
    outside->value = 100.0;
    EXPECT_EQ(rig.manager.getMostSuitablePressureData(), outside);
}

TEST(SensorManager, indicatedAltitudeFollowsTheFlags) {
    ManagerRig rig;
    rig.load(OneSensor);
    EXPECT_EQ(rig.manager.getIndicatedAltitude(), -1.0);
    EXPECT_EQ(rig.manager.getSeaLevelPressure(), 1013.25);
    auto* altitude = rig.sensor(1)->put<Altitude_Data>(ISensorData::Altitude, 1234.0, 0u);
    rig.manager.setForceAltimeterFallback(true);
    EXPECT_EQ(rig.manager.getIndicatedAltitude(), 1234.0) << "there is no pressure";
    rig.sensor(1)->put<Pressure_Data>(ISensorData::InsidePressure, 900.0, true, 0u);
    rig.manager.setFallbackSeaLevelPressure(1000.0);
    EXPECT_EQ(rig.manager.getIndicatedAltitude(), calcAltitudeFromPressure(900.0, 1000.0));
    EXPECT_EQ(rig.manager.getIndicatedAltitudeSource(), ISensorData::InsidePressure);
    EXPECT_EQ(rig.manager.getSeaLevelPressure(), 1000.0);
    rig.manager.setForceGNSSAltitude(true);
    EXPECT_EQ(rig.manager.getIndicatedAltitude(), altitude->value);
    rig.manager.setForceAltimeterFallback(false);
    EXPECT_EQ(rig.manager.getIndicatedAltitudeSource(), ISensorData::Altitude);
    EXPECT_EQ(rig.manager.getSeaLevelPressure(), calcSeaLevelPressure(1234.0, 900.0));
}

TEST(SensorManager, verticalSpeedHasAHalfLifeOfTwoSeconds) {
    ManagerRig rig;
    rig.load(OneSensor);
    auto* record = rig.sensor(1)->put<VerticalSpeed_Data>(ISensorData::VerticalSpeed, 8.0, 1u);
    const auto sample = [&](double value, double seconds) {
        rig.clock.advance(seconds);
        record->value = value;
        ++record->timeStamp;
        rig.manager.Update();
        return rig.manager.getFilteredVerticalSpeed();
    };
    EXPECT_EQ(sample(8.0, 0.0), 8.0);
    EXPECT_NEAR(sample(0.0, 2.0), 4.0, 1e-12);
    EXPECT_NEAR(sample(0.0, 0.036), 4.0 * std::exp(-0.0124766492), 1e-9);
    const double before = rig.manager.getFilteredVerticalSpeed();
    rig.clock.advance(5.0);
    record->value = 100.0;
    rig.manager.Update();
    EXPECT_EQ(rig.manager.getFilteredVerticalSpeed(), before) << "the time stamp is the old one";
    EXPECT_EQ(sample(std::nan(""), 1.0), before);
    EXPECT_GT(sample(100.0, 1.0), before);
}

TEST(SensorManager, simulationReplacesEveryDefault) {
    ManagerRig rig;
    rig.load(OneSensor);
    rig.manager.startSimulation(ChartPosition(-28.5, 42.25), 90, 700);
    rig.manager.Update();
    EXPECT_EQ(rig.manager.getDefaultSensorsWarningLevel(), ISensor::WRONG);
    EXPECT_EQ(rig.host.texts(), Texts{"Warning: Simulation active"});
    EXPECT_EQ(rig.host.messages.begin()->second.timeout, 5000);
    EXPECT_EQ(rig.host.messages.begin()->second.level, MESSAGE_RED);
    const auto record = [&](ISensorData::Type type) { return rig.manager.getDefaultSensor(type)->getData(type); };
    EXPECT_EQ(static_cast<Position_Data*>(record(ISensorData::Position))->longitude, -28.5);
    EXPECT_EQ(static_cast<GPS_Data*>(record(ISensorData::GPS))->latitude, 42.25);
    EXPECT_EQ(static_cast<GPS_Data*>(record(ISensorData::GPS))->groundTrack, 90.0);
    EXPECT_EQ(static_cast<Heading_Data*>(record(ISensorData::Heading))->value, 90.0);
    EXPECT_NEAR(static_cast<Attitude_Data*>(record(ISensorData::Attitude))->matrix.getForwardVector().X, 1.0, 1e-9);
    EXPECT_EQ(rig.manager.getIndicatedAltitude(), 700.0);
    for (int type = 0; type < ISensorData::TypeCount; ++type)
        EXPECT_NE(record(static_cast<ISensorData::Type>(type)), nullptr);
    rig.manager.stopSimulation();
    rig.manager.Update();
    EXPECT_EQ(rig.manager.getDefaultSensor(ISensorData::Position), rig.sensor(1));
    EXPECT_EQ(rig.manager.getDefaultSensorsWarningLevel(), ISensor::GOOD);
}

TEST(SensorManager, theSeekableSensorWithMostUsesIsPrimary) {
    ManagerRig rig;
    rig.load("SensorCount=4\nD1=1\nD2=2\nD3=2\nD4=3\nD5=3\n"
             "[S1]\nFactoryIndex=0\n[S2]\nFactoryIndex=0\n[S3]\nFactoryIndex=0\n");
    EXPECT_EQ(rig.manager.getPrimarySeekableSensor(), nullptr);
    rig.manager.registerSeekableSensor(rig.sensor(1));
    EXPECT_EQ(rig.manager.getPrimarySeekableSensor(), rig.sensor(1));
    rig.manager.registerSeekableSensor(rig.sensor(2));
    rig.manager.registerSeekableSensor(rig.sensor(3));
    EXPECT_EQ(rig.manager.getPrimarySeekableSensor(), rig.sensor(2));
    rig.manager.unload();
    EXPECT_EQ(rig.manager.getPrimarySeekableSensor(), nullptr);
}

TEST(SensorManager, writesAndReadsDefaults) {
    ManagerRig rig;
    IniFile ini;
    ini.setFromString("SensorCount=3\nD0=7\n[S1]\nFactoryIndex=1\n[S2]\nFactoryIndex=0\n");
    EXPECT_EQ(rig.manager.findUsedSensorFactory(&ini), 0) << "there is no section S7";
    rig.manager.setAllPossibleDefaults(&ini, 1);
    EXPECT_EQ(rig.manager.findUsedSensorFactory(&ini), 0) << "its factory is yet to come";
    rig.manager.setAllPossibleDefaults(&ini, 2);
    EXPECT_EQ(ini.get("", "D4"), "2");
    EXPECT_EQ(ini.get("", "D5"), "2");
    EXPECT_FALSE(ini.isAvailable("", "D6"));
    EXPECT_EQ(rig.manager.findUsedSensorFactory(&ini), 2);
    ini.set("", "D9", "1");
    EXPECT_EQ(rig.manager.findUsedSensorFactory(&ini), -1);
    rig.manager.setAllPossibleDefaults(&ini, 0);
    EXPECT_EQ(ini.get("", "D20"), "0");
    EXPECT_EQ(rig.manager.findUsedSensorFactory(&ini), 0);
    EXPECT_FALSE(ini.isSectionAvailable("S7"));
}

TEST(SensorManager, asksEverySensorToCalibrate) {
    ManagerRig rig;
    rig.load("SensorCount=3\n[S1]\nFactoryIndex=0\n[S2]\nFactoryIndex=0\n");
    EXPECT_TRUE(rig.manager.OnCalibrationButtonPressed());
    EXPECT_EQ(rig.sensor(1)->calibrations, 1);
    EXPECT_EQ(rig.sensor(2)->calibrations, 1);
    rig.load("");
    EXPECT_FALSE(rig.manager.OnCalibrationButtonPressed());
}

struct CountingReceiver : ISensorDataReceiver {
    void OnSensorUpdate(SensorManager* sensors) override {
        ++calls;
        if (leaves)
            sensors->unregisterSensorDataReceiver(this);
    }
    int calls = 0;
    bool leaves = false;
};

TEST(SensorManager, receiversAreToldOnceAFrameAndMayLeave) {
    ManagerRig rig;
    rig.load("");
    CountingReceiver staying, leaving;
    leaving.leaves = true;
    rig.manager.registerSensorDataReceiver(&leaving);
    rig.manager.registerSensorDataReceiver(&staying);
    rig.manager.Update();
    rig.manager.Update();
    EXPECT_EQ(leaving.calls, 1);
    EXPECT_EQ(staying.calls, 2);
}

} // namespace
} // namespace skyvane
