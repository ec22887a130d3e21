#include "sensors/log/LogFileSensorFactory.h"

#include "core/files/Paths.h"
#include "core/ini/IniFile.h"
#include "core/ini/ReadValue.h"
#include "core/log/Logger.h"
#include "core/text/Utf8.h"
#include "sensors/ISensorDialogs.h"
#include "sensors/SensorConfig.h"
#include "sensors/log/LogFileSensor.h"
#include "sensors/log/LogNames.h"

#include <utility>

namespace skyvane {
namespace {

std::wstring schemaFor(const std::vector<std::string>& logs, const std::string& folder) {
    return L"fileName,Choose LogFile: ," + schemaAlternatives(logs) +
           L",ONE_OF;level,Warning level indication: ,WRONG\\;MAYBE_WRONG\\;GOOD,ONE_OF;folder,Folder: ," +
           escapeForSchema(decodeUtf8(folder)) + L",NOT_EDITABLE;";
}

ISensor::WarningLevel levelOf(const std::string& word) {
    return word == "GOOD" ? ISensor::GOOD : word == "MAYBE_WRONG" ? ISensor::MAYBE_WRONG : ISensor::WRONG;
}

} // namespace

LogFileSensorFactory::LogFileSensorFactory(SensorManager* sensors, ISensorDialogs* dialogs, std::string folder)
    : NoSetupGUISensorFactory("LogFileSensor", allDataTypes()), sensors_(sensors), dialogs_(dialogs),
      folder_(std::move(folder)) {}

void LogFileSensorFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    const std::string name = readValue(*ini, section, "fileName");
    path_ = logPath(folder_, name);
    level_ = levelOf(readValue(*ini, section, "level"));
    if (path_.empty() || !fileExist(path_))
        logText("ERROR: File " + folder_ + name + " does not exist.\n");
}

bool LogFileSensorFactory::setup(IniFile* ini, std::string section) {
    const std::vector<std::string> logs = listLogs(folder_);
    if (logs.empty()) {
        dialogs_->tell("There is no log yet in " + folder_ + ".\nLogs are recorded under Menu, Forwarding.");
        return false;
    }
    // The folder is shown as it is today.
    ini->removeValue(section, "folder");
    return editSection(*dialogs_, *ini, section, "Log File", schemaFor(logs, folder_), "Forwarding.hti");
}

std::unique_ptr<ISensor> LogFileSensorFactory::Create() {
    return std::make_unique<LogFileSensor>(path_, sensors_, level_);
}

} // namespace skyvane
