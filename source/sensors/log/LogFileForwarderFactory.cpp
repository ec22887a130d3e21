#include "sensors/log/LogFileForwarderFactory.h"

#include "core/files/Paths.h"
#include "sensors/ISensorDialogs.h"
#include "sensors/SensorConfig.h"
#include "sensors/SensorManager.h"
#include "sensors/log/LogFileForwarder.h"
#include "sensors/log/LogNames.h"

#include <utility>

namespace skyvane {

LogFileForwarderFactory::LogFileForwarderFactory(SensorManager* sensors, ISensorDialogs* dialogs, std::string folder)
    : sensors_(sensors), dialogs_(dialogs), folder_(std::move(folder)) {}

bool LogFileForwarderFactory::setup() {
    sources_.clear();
    for (const ISensorData::Type type : allDataTypes())
        sources_[type] = sensors_->getDefaultSensor(type);
    const std::string question =
        "Please enter the new logfile name (characters: 0-9,A-Z,a-z,-,_):\n(Folder: " + folder_ + ")";
    std::string name = "Logfile";
    while (dialogs_->askText(question, name)) {
        fileName_ = logPath(folder_, name + ".dat");
        if (!isLogName(name))
            dialogs_->tell("\"" + name + "\" can't be the name of a log.");
        else if (!fileExist(fileName_) || dialogs_->confirm("There is a log \"" + name + "\" already. Replace it?"))
            return true;
    }
    return false;
}

std::unique_ptr<ISensorForwarder> LogFileForwarderFactory::Create() {
    auto forwarder = std::make_unique<LogFileForwarder>(fileName_, sources_, sensors_->getHost());
    if (forwarder->fail())
        dialogs_->tell("The log can't be written, or it plays at present:\n" + fileName_);
    return forwarder;
}

} // namespace skyvane
