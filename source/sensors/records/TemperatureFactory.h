#pragma once

#include "sensors/records/ISensorDataFactory.h"
#include "sensors/records/Temperature_Data.h"

namespace skyvane {

/// Makes records of the temperature inside, or outside.
class TemperatureFactory : public ISensorDataFactory {
public:
    explicit TemperatureFactory(bool inside) : inside_(inside) {}
    std::unique_ptr<ISensorData> Create() override { return std::make_unique<Temperature_Data>(inside_); }
    std::string getName() override { return inside_ ? "InsideTemperature" : "OutsideTemperature"; }

private:
    bool inside_;
};

} // namespace skyvane
