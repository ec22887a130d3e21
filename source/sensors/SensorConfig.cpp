#include "sensors/SensorConfig.h"

#include "core/ini/IniFile.h"
#include "core/ini/ReadValue.h"
#include "core/text/Numbers.h"
#include "sensors/ISensorForwarder.h"

namespace skyvane {
namespace {

constexpr char Unnamed[] = "";
constexpr char ForwarderCountKey[] = "ForwarderCount";

} // namespace

int readNumber(IniFile& ini, const std::string& section, const std::string& key, int fallback) {
    return toInt(readValue(ini, section, key), fallback);
}

int readNumberWithin(IniFile& ini, const std::string& section, const std::string& key, int least, int largest,
                     int fallback) {
    const int number = readNumber(ini, section, key, fallback);
    return number >= least && number <= largest ? number : fallback;
}

std::vector<ISensorData::Type> allDataTypes() {
    std::vector<ISensorData::Type> types;
    for (int type = 0; type < ISensorData::TypeCount; ++type)
        types.push_back(static_cast<ISensorData::Type>(type));
    return types;
}

std::string sensorSection(int index) {
    return "S" + toText(index);
}

std::string forwarderSection(int index) {
    return "F" + toText(index);
}

std::string defaultKey(int type) {
    return "D" + toText(type);
}

int countSensorSections(IniFile& ini) {
    // The NullSensor, which has no section, counts.
    const unsigned claimed = toUnsigned(readValue(ini, Unnamed, "SensorCount"));
    int count = 0;
    while (static_cast<unsigned>(count) + 1 < claimed && ini.isSectionAvailable(sensorSection(count + 1)))
        ++count;
    return count;
}

int countForwarderSections(IniFile& ini) {
    const unsigned claimed = toUnsigned(readValue(ini, Unnamed, ForwarderCountKey));
    int count = 0;
    while (static_cast<unsigned>(count) < claimed && ini.isSectionAvailable(forwarderSection(count)))
        ++count;
    return count;
}

int appendForwarderSection(IniFile& ini, int factoryIndex, ISensorForwarderFactory& factory) {
    const int index = countForwarderSections(ini);
    const std::string section = forwarderSection(index);
    ini.removeSection(section);
    ini.set(section, "ForwarderFactory", toText(factoryIndex));
    ini.set(section, "ForwarderFactoryName", factory.getName());
    factory.saveSetupToIni(&ini, section);
    ini.set(Unnamed, ForwarderCountKey, toText(index + 1));
    return index;
}

void removeForwarderSection(IniFile& ini, int index) {
    const int count = countForwarderSections(ini);
    if (index < 0 || index >= count)
        return;
    ini.removeSection(forwarderSection(index));
    for (int later = index + 1; later < count; ++later)
        ini.moveSection(forwarderSection(later), forwarderSection(later - 1));
    ini.set(Unnamed, ForwarderCountKey, toText(count - 1));
}

} // namespace skyvane
