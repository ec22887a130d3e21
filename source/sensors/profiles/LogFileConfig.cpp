#include "sensors/profiles/LogFileConfig.h"

#include "core/ini/IniFile.h"
#include "sensors/SensorManager.h"

namespace skyvane {
namespace {

constexpr char Section[] = "S1";

} // namespace

std::wstring LogFileConfig::getName() {
    return L"Log File";
}

std::wstring LogFileConfig::getDescription() {
    return L"A recorded flight is played back. What is shown is NOT the actual situation.\nLogs are recorded under "
           L"Menu, "
           L"Forwarding.";
}

bool LogFileConfig::OnConfigChosen(IniFile* ini) {
    if (!hasFactories())
        return false;
    const auto& factories = sensors().getSensorFactories();
    const auto index = static_cast<size_t>(findSensorFactory(factories, Factory));
    // The choice of the last time is the proposal; the settings of another sensor aren't.
    IniFile asked = *ini;
    if (!asked.isAvailable(Section, "FactoryName") || asked.get(Section, "FactoryName") != Factory)
        asked.removeSection(Section);
    if (!factories[index]->setup(&asked, Section))
        return false;
    writeSensors(*ini, {{Factory, [&asked](IniFile& to, const std::string& section) {
                             for (const char* key : {"fileName", "level", "folder"})
                                 if (asked.isAvailable(Section, key))
                                     to.set(section, key, asked.get(Section, key));
                         }}});
    return true;
}

} // namespace skyvane
