#pragma once

#include "sensors/BatteryMonitor.h"
#include "sensors/ISensor.h"
#include "sensors/ISensorDataReceiver.h"
#include "sensors/ISensorFactory.h"
#include "sensors/ISensorForwarder.h"
#include "sensors/VerticalSpeedFilter.h"
#include "sensors/profiles/IConfigOverride.h"
#include "sensors/records/ISensorDataFactory.h"

#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace skyvane {

class IniFile;
class ISensorHost;
class SimulatorSensor;
class Pressure_Data;
struct ChartPosition;

/// Owns the sensors of the running configuration and answers, for each data type, which sensor is the default, what it
/// says, and how far to trust it. Polls all sensors once a frame and feeds the forwarders. Main thread only.
///
///     ISensor* sensor = sensors->getDefaultSensor(ISensorData::Heading);   // never null after loading
///     auto* heading = static_cast<Heading_Data*>(sensor->getData(ISensorData::Heading));
///     if (heading && sensor->getWarning(ISensorData::Heading) != ISensor::WRONG) draw(heading->value);
class SensorManager {
public:
    /// The host must outlive the manager.
    explicit SensorManager(ISensorHost* host);
    ~SensorManager();
    SensorManager(const SensorManager&) = delete;
    SensorManager& operator=(const SensorManager&) = delete;

    // Registration, before loading. A null factory keeps the place of one to come; loading skips it, screens hide it.
    void addSensorFactory(std::unique_ptr<ISensorFactory> factory);
    void addSensorForwarderFactory(std::unique_ptr<ISensorForwarderFactory> factory);
    void addSensorDataFactory(ISensorData::Type type, std::unique_ptr<ISensorDataFactory> factory);
    void addSensorConfigOverride(std::unique_ptr<IConfigOverride> profile);

    /// Drops what was loaded before. With chooseProfile the user is asked first, which may change the document.
    void loadSensorSettingsFromIni(IniFile* ini, bool chooseProfile);
    /// The profile screen of the host, which saves the document when a profile was chosen.
    void chooseSensorConfigOverride(IniFile* ini);
    void unload();
    /// Once a frame.
    void Update();

    /// Never null after loading. The SimulatorSensor during a simulation.
    ISensor* getDefaultSensor(ISensorData::Type type);
    /// Null for an index out of range.
    ISensor* getSensorInterface(int index);
    int getSensorInterfaceCount() const;
    /// All sensors that support the type, the NullSensor included.
    std::vector<ISensor*> getSensorInterfaces(ISensorData::Type type);
    std::unique_ptr<ISensorData> createSensorData(ISensorData::Type type);
    ISensorDataFactory* getSensorDataFactory(ISensorData::Type type);
    const std::vector<std::unique_ptr<ISensorFactory>>& getSensorFactories() const { return sensorFactories_; }
    ISensorHost* getHost() const { return host_; }

    /// Whether a message box tells when default data gets worse.
    void setShowPopups(bool on) { showPopups_ = on; }
    /// The level of the last Update over position, attitude, heading and altitude.
    ISensor::WarningLevel getDefaultSensorsWarningLevel() const { return defaultLevel_; }

    /// Outside pressure, else inside pressure, of at least 100 mbar; otherwise null.
    Pressure_Data* getMostSuitablePressureData();
    /// Metres above mean sea level; -1.0 without a record.
    double getIndicatedAltitude();
    /// Millibars.
    double getSeaLevelPressure();
    void setFallbackSeaLevelPressure(double millibars) { fallbackSeaLevelPressure_ = millibars; }
    double getFallbackSeaLevelPressure() const { return fallbackSeaLevelPressure_; }
    void setForceAltimeterFallback(bool on) { forceAltimeterFallback_ = on; }
    bool getForceAltimeterFallback() const { return forceAltimeterFallback_; }
    void setForceGNSSAltitude(bool on) { forceGnssAltitude_ = on; }
    bool getForceGNSSAltitude() const { return forceGnssAltitude_; }
    /// The data type that getIndicatedAltitude takes its value from now: a pressure type or Altitude.
    ISensorData::Type getIndicatedAltitudeSource();

    /// Metres per second.
    double getFilteredVerticalSpeed() const { return verticalSpeed_.value(); }

    /// 0 unknown, 1 discharging, 2 charging or full.
    int getBatteryState() const { return battery_.state(); }
    /// 0.0 to 1.0.
    double getBatteryFill() const { return battery_.fill(); }
    /// Change of the fill per second; false before there were two measurements.
    bool getBatteryChargeSpeed(double& fillPerSecond) { return battery_.chargeSpeed(fillPerSecond); }
    /// Secs() of the last measurement.
    double getLastChargeSpeedMeasurementTime() const { return battery_.lastMeasurementTime(); }
    /// Where the battery's files lie, for tests; the system's folder at start.
    void setBatteryFolder(const std::string& folder) { battery_.setFolder(folder); }

    void registerSensorDataReceiver(ISensorDataReceiver* receiver);
    void unregisterSensorDataReceiver(ISensorDataReceiver* receiver);

    ISensorForwarder* getSensorForwarder(int index);
    int getSensorForwarderCount() const;
    ISensorForwarderFactory* getForwarderFactory(int index);
    int getForwarderFactoryCount() const;
    /// Takes effect at once and is written to the configuration document.
    void addSensorForwarder(int factoryIndex, std::unique_ptr<ISensorForwarder> forwarder);
    void deleteSensorForwarder(int index);
    void setAllForwarderPause(bool paused);

    enum PLAYBACK_STATE { PLAYBACK_PLAY, PLAYBACK_PAUSE, PLAYBACK_STOP };
    PLAYBACK_STATE getPlaybackState() const { return playbackState_; }
    void setPlaybackState(PLAYBACK_STATE state) { playbackState_ = state; }
    float getPlaybackSpeed() const { return playbackSpeed_; }
    void setPlaybackSpeed(float speed) { playbackSpeed_ = speed; }
    bool getPlaybackLoop() const { return playbackLoop_; }
    void setPlaybackLoop(bool loop) { playbackLoop_ = loop; }
    ISeekableSensor* getPrimarySeekableSensor() const { return primarySeekable_; }
    void registerSeekableSensor(ISeekableSensor* sensor);

    /// Heading in degrees, altitude in metres. Until stopSimulation every default is the SimulatorSensor.
    void startSimulation(const ChartPosition& position, int heading, int altitude);
    void stopSimulation();
    bool isSimulationActive() const { return simulating_; }

    bool OnCalibrationButtonPressed();

    /// Points every type that the factory of section S<index> supports at that sensor; index <= 0 resets all to 0.
    void setAllPossibleDefaults(IniFile* ini, int sensorIndex);
    /// The one sensor index that D0 to D20 point at, 0 when there is none, -1 when there are several.
    int findUsedSensorFactory(IniFile* ini);

private:
    void load(IniFile* ini);
    void loadSensors(IniFile* ini);
    void loadDefaults(IniFile* ini);
    void loadForwarders(IniFile* ini);
    void updateSensors();
    void updateWarningLevel();
    void updateVerticalSpeed(double now);

    struct LoadedForwarder {
        std::unique_ptr<ISensorForwarder> forwarder;
        int configIndex;
    };

    ISensorHost* host_;
    std::vector<std::unique_ptr<ISensorFactory>> sensorFactories_;
    std::vector<std::unique_ptr<ISensorForwarderFactory>> forwarderFactories_;
    std::vector<std::unique_ptr<IConfigOverride>> profiles_;
    std::array<std::unique_ptr<ISensorDataFactory>, ISensorData::TypeCount> dataFactories_;
    std::vector<std::unique_ptr<ISensor>> sensors_; ///< Index 0 is the NullSensor.
    std::array<ISensor*, ISensorData::TypeCount> defaults_{};
    std::unique_ptr<SimulatorSensor> simulator_;
    bool simulating_ = false;
    std::vector<LoadedForwarder> forwarders_;
    std::vector<ISensorDataReceiver*> receivers_;
    ISensor::WarningLevel defaultLevel_ = ISensor::GOOD;
    bool showPopups_ = false;
    BatteryMonitor battery_;
    VerticalSpeedFilter verticalSpeed_;
    double fallbackSeaLevelPressure_ = 1013.25;
    bool forceAltimeterFallback_ = false;
    bool forceGnssAltitude_ = false;
    PLAYBACK_STATE playbackState_ = PLAYBACK_PLAY;
    float playbackSpeed_ = 1.0f;
    bool playbackLoop_ = false;
    ISeekableSensor* primarySeekable_ = nullptr;
    int primarySeekableUses_ = -1;
};

} // namespace skyvane
