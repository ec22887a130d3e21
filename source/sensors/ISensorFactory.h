#pragma once

#include "sensors/ISensor.h"

#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class IniFile;

/// Makes the sensors of one kind from their configuration sections. Its place in the list is a stored format.
class ISensorFactory {
public:
    /// Takes over the settings of the section for the next Create.
    virtual void loadSetupFromIni(IniFile* ini, std::string section) = 0;
    /// Shows the sensor's own setup dialog; true when accepted.
    virtual bool setup(IniFile* ini, std::string section) = 0;
    virtual std::unique_ptr<ISensor> Create() = 0;
    virtual std::string getName() = 0;
    virtual std::vector<ISensorData::Type> getSupportedDataTypes() = 0;
    virtual bool isDataTypeSupported(ISensorData::Type type) = 0;
    virtual ~ISensorFactory() = default;
};

} // namespace skyvane
