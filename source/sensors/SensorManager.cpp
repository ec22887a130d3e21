#include "sensors/SensorManager.h"

#include "chart/geodesy/Barometry.h"
#include "core/time/Time.h"
#include "sensors/ISensorHost.h"
#include "sensors/SimulatorSensor.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/Pressure_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"

#include <algorithm>

namespace skyvane {
namespace {

/// Readers of pressure ignore values below, among them the -300 that means none.
constexpr double MinimalPressureMillibars = 100.0;

template <class Owner>
auto* at(const std::vector<std::unique_ptr<Owner>>& owners, int index) {
    return index >= 0 && static_cast<size_t>(index) < owners.size() ? owners[static_cast<size_t>(index)].get()
                                                                    : nullptr;
}

template <class Record>
Record* recordOf(SensorManager& manager, ISensorData::Type type) {
    ISensor* sensor = manager.getDefaultSensor(type);
    return sensor ? static_cast<Record*>(sensor->getData(type)) : nullptr;
}

} // namespace

SensorManager::SensorManager(ISensorHost* host) : host_(host) {}

SensorManager::~SensorManager() {
    unload();
}

void SensorManager::addSensorFactory(std::unique_ptr<ISensorFactory> factory) {
    sensorFactories_.push_back(std::move(factory));
}

void SensorManager::addSensorForwarderFactory(std::unique_ptr<ISensorForwarderFactory> factory) {
    forwarderFactories_.push_back(std::move(factory));
}

void SensorManager::addSensorDataFactory(ISensorData::Type type, std::unique_ptr<ISensorDataFactory> factory) {
    if (ISensorData::isType(type))
        dataFactories_[static_cast<size_t>(type)] = std::move(factory);
}

void SensorManager::Update() {
    const double now = Secs();
    battery_.update(now, *host_);
    updateSensors();
    updateWarningLevel();
    updateVerticalSpeed(now);
    // A receiver may unregister itself; the next one then stands at its place.
    for (size_t i = 0; i < receivers_.size();) {
        ISensorDataReceiver* receiver = receivers_[i];
        receiver->OnSensorUpdate(this);
        if (i < receivers_.size() && receivers_[i] == receiver)
            ++i;
    }
}

void SensorManager::updateSensors() {
    for (size_t i = 0; i < sensors_.size(); ++i) {
        ISensor* sensor = sensors_[i].get();
        if (!sensor->Update() || i == 0)
            continue;
        for (const LoadedForwarder& loaded : forwarders_)
            loaded.forwarder->forward(sensor);
    }
}

void SensorManager::updateWarningLevel() {
    ISensor::WarningLevel level = ISensor::GOOD;
    if (simulating_)
        level = ISensor::WRONG;
    else
        for (const ISensorData::Type type :
             {ISensorData::Position, ISensorData::Attitude, ISensorData::Heading, ISensorData::Altitude})
            if (ISensor* sensor = getDefaultSensor(type))
                level = std::max(level, sensor->getWarning(type));
    const bool worse = level > defaultLevel_;
    defaultLevel_ = level;
    if (showPopups_ && worse)
        host_->showMessageBox(level == ISensor::MAYBE_WRONG ? "Sensor Warning: Default SensorData possibly wrong."
                                                            : "Sensor Warning: Default SensorData wrong.");
}

void SensorManager::updateVerticalSpeed(double now) {
    if (const auto* record = recordOf<VerticalSpeed_Data>(*this, ISensorData::VerticalSpeed))
        verticalSpeed_.update(record->value, record->timeStamp, now);
}

ISensor* SensorManager::getDefaultSensor(ISensorData::Type type) {
    if (simulating_)
        return simulator_.get();
    return ISensorData::isType(type) ? defaults_[static_cast<size_t>(type)] : at(sensors_, 0);
}

ISensor* SensorManager::getSensorInterface(int index) {
    return at(sensors_, index);
}

int SensorManager::getSensorInterfaceCount() const {
    return static_cast<int>(sensors_.size());
}

std::vector<ISensor*> SensorManager::getSensorInterfaces(ISensorData::Type type) {
    std::vector<ISensor*> supporting;
    for (const auto& sensor : sensors_)
        if (sensor->isDataTypeSupported(type))
            supporting.push_back(sensor.get());
    return supporting;
}

std::unique_ptr<ISensorData> SensorManager::createSensorData(ISensorData::Type type) {
    ISensorDataFactory* factory = getSensorDataFactory(type);
    return factory ? factory->Create() : nullptr;
}

ISensorDataFactory* SensorManager::getSensorDataFactory(ISensorData::Type type) {
    return ISensorData::isType(type) ? dataFactories_[static_cast<size_t>(type)].get() : nullptr;
}

Pressure_Data* SensorManager::getMostSuitablePressureData() {
    for (const ISensorData::Type type : {ISensorData::OutsidePressure, ISensorData::InsidePressure}) {
        auto* record = recordOf<Pressure_Data>(*this, type);
        if (record && record->value >= MinimalPressureMillibars)
            return record;
    }
    return nullptr;
}

ISensorData::Type SensorManager::getIndicatedAltitudeSource() {
    if (!forceAltimeterFallback_ || forceGnssAltitude_)
        return ISensorData::Altitude;
    Pressure_Data* pressure = getMostSuitablePressureData();
    return pressure ? pressure->getType() : ISensorData::Altitude;
}

double SensorManager::getIndicatedAltitude() {
    if (getIndicatedAltitudeSource() != ISensorData::Altitude)
        return calcAltitudeFromPressure(getMostSuitablePressureData()->value, fallbackSeaLevelPressure_);
    const auto* altitude = recordOf<Altitude_Data>(*this, ISensorData::Altitude);
    return altitude ? altitude->value : -1.0;
}

double SensorManager::getSeaLevelPressure() {
    const auto* altitude = recordOf<Altitude_Data>(*this, ISensorData::Altitude);
    const Pressure_Data* pressure = getMostSuitablePressureData();
    if (forceAltimeterFallback_ || !altitude || !pressure)
        return fallbackSeaLevelPressure_;
    return calcSeaLevelPressure(altitude->value, pressure->value);
}

void SensorManager::registerSensorDataReceiver(ISensorDataReceiver* receiver) {
    receivers_.push_back(receiver);
}

void SensorManager::unregisterSensorDataReceiver(ISensorDataReceiver* receiver) {
    receivers_.erase(std::remove(receivers_.begin(), receivers_.end(), receiver), receivers_.end());
}

void SensorManager::registerSeekableSensor(ISeekableSensor* sensor) {
    const int uses =
        static_cast<int>(std::count(defaults_.begin(), defaults_.end(), static_cast<const ISensor*>(sensor)));
    if (uses <= primarySeekableUses_)
        return;
    primarySeekable_ = sensor;
    primarySeekableUses_ = uses;
}

bool SensorManager::OnCalibrationButtonPressed() {
    bool did = false;
    for (const auto& sensor : sensors_)
        did = sensor->OnCalibrate() || did;
    return did;
}

} // namespace skyvane
