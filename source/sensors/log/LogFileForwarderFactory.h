#pragma once

#include "sensors/ISensorForwarder.h"
#include "sensors/records/ISensorData.h"

#include <map>

namespace skyvane {

class ISensorDialogs;
class SensorManager;

/// Makes the forwarder that records a flight from the default sensors. A recording isn't restored from the
/// configuration: it lasts until it is removed or the program ends.
class LogFileForwarderFactory : public ISensorForwarderFactory {
public:
    /// Manager and dialogs outlive the factory. The folder ends in a slash.
    LogFileForwarderFactory(SensorManager* sensors, ISensorDialogs* dialogs, std::string folder);

    /// Asks for a name until it is one, and before a log is replaced.
    bool setup() override;
    std::unique_ptr<ISensorForwarder> Create() override;
    std::string getName() override { return "LogFile"; }

private:
    SensorManager* sensors_;
    ISensorDialogs* dialogs_;
    std::string folder_;
    std::string fileName_;
    std::map<ISensorData::Type, ISensor*> sources_;
};

} // namespace skyvane
