#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "sensors/ISensorHost.h"
#include "sensors/SensorConfig.h"
#include "sensors/SensorManager.h"
#include "sensors/SimulatorSensor.h"

#include <set>

namespace skyvane {
namespace {

constexpr int NoFactory = -1;

template <class Factory>
Factory* at(const std::vector<std::unique_ptr<Factory>>& factories, int index) {
    return index >= 0 && static_cast<size_t>(index) < factories.size() ? factories[static_cast<size_t>(index)].get()
                                                                       : nullptr;
}

} // namespace

void SensorManager::addSensorConfigOverride(std::unique_ptr<IConfigOverride> profile) {
    profiles_.push_back(std::move(profile));
}

void SensorManager::loadSensorSettingsFromIni(IniFile* ini, bool chooseProfile) {
    if (chooseProfile)
        chooseSensorConfigOverride(ini);
    load(ini);
}

void SensorManager::chooseSensorConfigOverride(IniFile* ini) {
    // The frames of the screen ask for data: it all comes from the NullSensor.
    IniFile nothing;
    load(&nothing);
    host_->chooseProfile(*ini, profiles_);
}

void SensorManager::load(IniFile* ini) {
    unload();
    showPopups_ = readNumber(*ini, "", "showPopups", 0) != 0;
    loadSensors(ini);
    loadDefaults(ini);
    loadForwarders(ini);
    simulator_ = std::make_unique<SimulatorSensor>(this);
}

void SensorManager::loadSensors(IniFile* ini) {
    sensors_.push_back(std::make_unique<NullSensor>(this));
    const int count = countSensorSections(*ini);
    for (int n = 1; n <= count; ++n) {
        const std::string section = sensorSection(n);
        ISensorFactory* factory = at(sensorFactories_, readNumber(*ini, section, "FactoryIndex", NoFactory));
        if (!factory)
            continue;
        factory->loadSetupFromIni(ini, section);
        std::unique_ptr<ISensor> sensor = factory->Create();
        if (!sensor)
            continue;
        sensors_.push_back(std::move(sensor));
        host_->pumpWindow();
    }
}

void SensorManager::loadDefaults(IniFile* ini) {
    for (int type = 0; type < ISensorData::TypeCount; ++type) {
        ISensor* chosen = getSensorInterface(readNumber(*ini, "", defaultKey(type), 0));
        defaults_[static_cast<size_t>(type)] = chosen ? chosen : sensors_.front().get();
    }
}

void SensorManager::loadForwarders(IniFile* ini) {
    const int count = countForwarderSections(*ini);
    for (int n = 0; n < count; ++n) {
        const std::string section = forwarderSection(n);
        ISensorForwarderFactory* factory =
            getForwarderFactory(readNumber(*ini, section, "ForwarderFactory", NoFactory));
        if (!factory || !factory->loadSetupFromIni(ini, section))
            continue;
        std::unique_ptr<ISensorForwarder> forwarder = factory->Create();
        if (!forwarder)
            continue;
        forwarders_.push_back({std::move(forwarder), n});
        host_->pumpWindow();
    }
}

void SensorManager::unload() {
    forwarders_.clear();
    primarySeekable_ = nullptr;
    primarySeekableUses_ = -1;
    defaults_.fill(nullptr);
    sensors_.clear();
    // The simulated place goes with its records.
    simulating_ = false;
    simulator_.reset();
}

void SensorManager::setAllPossibleDefaults(IniFile* ini, int sensorIndex) {
    if (sensorIndex <= 0) {
        for (int type = 0; type < ISensorData::TypeCount; ++type)
            ini->set("", defaultKey(type), toText(0));
        return;
    }
    const int factoryIndex = readNumber(*ini, sensorSection(sensorIndex), "FactoryIndex", NoFactory);
    if (ISensorFactory* factory = at(sensorFactories_, factoryIndex))
        for (const ISensorData::Type type : factory->getSupportedDataTypes())
            ini->set("", defaultKey(type), toText(sensorIndex));
}

int SensorManager::findUsedSensorFactory(IniFile* ini) {
    const int sectionCount = countSensorSections(*ini);
    std::set<int> used;
    for (int type = 0; type < ISensorData::TypeCount; ++type) {
        const int index = readNumber(*ini, "", defaultKey(type), 0);
        if (index > 0 && index <= sectionCount)
            used.insert(index);
    }
    if (used.empty())
        return 0;
    return used.size() == 1 ? *used.begin() : -1;
}

} // namespace skyvane
