#pragma once

#include "sensors/ISensor.h"

#include <array>
#include <memory>

namespace skyvane {

class SensorManager;

/// The sensor that never fails to answer: a default record of every type, none of it to be trusted.
class NullSensor : public ISensor {
public:
    /// Makes the records by the manager's data factories.
    explicit NullSensor(SensorManager* manager);

    std::string getName() override { return "NullSensor"; }
    bool Update() override { return false; }
    bool lastTimeUpdated(ISensorData::Type) override { return false; }
    /// Null for a number that is no type.
    ISensorData* getData(ISensorData::Type type) override;
    bool isDataTypeSupported(ISensorData::Type type) override { return ISensorData::isType(type); }
    std::vector<ISensorData::Type> getSupportedDataTypes() override;
    WarningLevel getWarning(ISensorData::Type) override { return WRONG; }

private:
    std::array<std::unique_ptr<ISensorData>, ISensorData::TypeCount> records_;
};

} // namespace skyvane
