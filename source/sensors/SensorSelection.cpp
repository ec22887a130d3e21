#include "sensors/SensorSelection.h"

#include "core/ini/IniFile.h"
#include "core/ini/ReadValue.h"
#include "core/text/Numbers.h"
#include "sensors/SensorConfig.h"
#include "sensors/SensorManager.h"

namespace skyvane {
namespace {

constexpr int noFactory = -1;

void setCount(IniFile& document, int sensors) {
    document.set("", "SensorCount", toText(sensors + 1)); // the NullSensor counts
}

} // namespace

SensorSelection::SensorSelection(SensorManager& sensors, IniFile* document) : sensors_(sensors), document_(document) {
    for (std::size_t i = 0; i < sensors_.getSensorFactories().size(); ++i)
        if (sensors_.getSensorFactories()[i])
            factories_.push_back(static_cast<int>(i));
}

ISensorFactory* SensorSelection::factoryAt(int index) const {
    const auto& all = sensors_.getSensorFactories();
    return index >= 0 && static_cast<std::size_t>(index) < all.size() ? all[static_cast<std::size_t>(index)].get()
                                                                      : nullptr;
}

ISensorFactory* SensorSelection::factoryOf(int sensor) const {
    return factoryAt(getFactory(sensor));
}

int SensorSelection::getFactory(int sensor) const {
    return readNumber(*document_, sensorSection(sensor), "FactoryIndex", noFactory);
}

std::string SensorSelection::getFactoryName(int factoryIndex) const {
    ISensorFactory* factory = factoryAt(factoryIndex);
    return factory ? factory->getName() : std::string();
}

int SensorSelection::count() const {
    return countSensorSections(*document_);
}

std::string SensorSelection::getName(int sensor) const {
    if (ISensorFactory* factory = factoryOf(sensor))
        return factory->getName();
    const std::string section = sensorSection(sensor);
    return readValue(*document_, section, "FactoryName", "?");
}

/// Takes the document over, with the section of the sensor set up, when that is accepted.
bool SensorSelection::setUp(IniFile document, int factoryIndex, int sensor) {
    ISensorFactory* factory = factoryAt(factoryIndex);
    const std::string section = sensorSection(sensor);
    if (!factory || !factory->setup(&document, section))
        return false;
    document.set(section, "FactoryIndex", toText(factoryIndex));
    document.set(section, "FactoryName", factory->getName());
    *document_ = std::move(document);
    return true;
}

bool SensorSelection::add(int factoryIndex) {
    const int sensor = count() + 1;
    IniFile changed = *document_;
    changed.removeSection(sensorSection(sensor));
    if (!setUp(std::move(changed), factoryIndex, sensor))
        return false;
    setCount(*document_, sensor);
    return true;
}

bool SensorSelection::edit(int sensor) {
    if (sensor < 1 || sensor > count())
        return false;
    return setUp(*document_, getFactory(sensor), sensor);
}

void SensorSelection::remove(int sensor) {
    const int last = count();
    if (sensor < 1 || sensor > last)
        return;
    document_->removeSection(sensorSection(sensor));
    for (int later = sensor + 1; later <= last; ++later)
        document_->moveSection(sensorSection(later), sensorSection(later - 1));
    for (int type = 0; type < ISensorData::TypeCount; ++type) {
        const int used = readNumber(*document_, "", defaultKey(type), 0);
        if (used >= sensor)
            document_->set("", defaultKey(type), toText(used == sensor ? 0 : used - 1));
    }
    setCount(*document_, last - 1);
}

bool SensorSelection::useOnly(int factoryIndex) {
    const int last = count();
    IniFile changed = *document_;
    if (readNumber(changed, sensorSection(1), "FactoryIndex", noFactory) != factoryIndex)
        changed.removeSection(sensorSection(1));
    if (!setUp(std::move(changed), factoryIndex, 1))
        return false;
    for (int sensor = 2; sensor <= last; ++sensor)
        document_->removeSection(sensorSection(sensor));
    setCount(*document_, 1);
    sensors_.setAllPossibleDefaults(document_, 0);
    sensors_.setAllPossibleDefaults(document_, 1);
    return true;
}

void SensorSelection::useForAll(int sensor) {
    if (sensor >= 1 && sensor <= count())
        sensors_.setAllPossibleDefaults(document_, sensor);
}

int SensorSelection::getDefault(ISensorData::Type type) const {
    const int sensor = readNumber(*document_, "", defaultKey(type), 0);
    return sensor >= 1 && sensor <= count() ? sensor : 0;
}

bool SensorSelection::setDefault(ISensorData::Type type, int sensor) {
    ISensorFactory* factory = factoryOf(sensor);
    const bool isSupported = sensor == 0 || (factory && factory->isDataTypeSupported(type));
    if (!ISensorData::isType(type) || sensor < 0 || sensor > count() || !isSupported)
        return false;
    document_->set("", defaultKey(type), toText(sensor));
    return true;
}

int SensorSelection::getUsed() const {
    return sensors_.findUsedSensorFactory(document_);
}

} // namespace skyvane
