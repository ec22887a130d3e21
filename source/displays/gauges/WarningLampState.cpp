#include "displays/gauges/WarningLampState.h"

#include "sensors/SensorManager.h"

namespace skyvane {

namespace {

constexpr const char* names[] = {"DEFAULTSENSORS", "ALTITUDE", "COURSE", "SPEED"};
constexpr uint32_t white = 0xffffffff, green = 0xff00ff00, yellow = 0xffffff00, red = 0xffff0000;
constexpr ISensorData::Type describedTypes[] = {ISensorData::Attitude, ISensorData::Heading, ISensorData::Position,
                                                ISensorData::Altitude};

const char* qualityText(ISensor::WarningLevel level) {
    if (level == ISensor::GOOD)
        return "good";
    return level == ISensor::MAYBE_WRONG ? "unreliable" : "wrong";
}

std::string describeSensor(SensorManager& sensors, ISensor& sensor) {
    std::string text = "\nSensor: " + sensor.getName() + "\n" + sensor.getSensorDetails() + "\n";
    for (ISensorData::Type type : describedTypes) {
        ISensorDataFactory* factory = sensors.getSensorDataFactory(type);
        if (factory && sensors.getDefaultSensor(type) == &sensor)
            text += factory->getName() + ": " + qualityText(sensor.getWarning(type)) + "\n";
    }
    return text;
}

} // namespace

WarningType parseWarningType(const std::string& name) {
    for (int i = 0; i < 4; ++i)
        if (name == names[i])
            return static_cast<WarningType>(i);
    return WarningType::DEFAULTSENSORS;
}

const char* nameOf(WarningType type) {
    return names[static_cast<int>(type)];
}

uint32_t sensorLampColor(ISensor::WarningLevel level) {
    return level == ISensor::MAYBE_WRONG ? yellow : level == ISensor::WRONG ? red : green;
}

uint32_t procedureLampColor(const LampWatch& watch) {
    if (!watch.flown || !watch.checked)
        return white;
    return watch.warning ? yellow : green;
}

std::string describeSensors(SensorManager& sensors) {
    std::string text = "Sensor Details:\n";
    for (int i = 1; i < sensors.getSensorInterfaceCount(); ++i)
        if (ISensor* sensor = sensors.getSensorInterface(i))
            text += describeSensor(sensors, *sensor);
    return text;
}

} // namespace skyvane
