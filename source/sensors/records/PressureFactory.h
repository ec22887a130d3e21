#pragma once

#include "sensors/records/ISensorDataFactory.h"
#include "sensors/records/Pressure_Data.h"

namespace skyvane {

/// Makes records of the pressure inside, or outside.
class PressureFactory : public ISensorDataFactory {
public:
    explicit PressureFactory(bool inside) : inside_(inside) {}
    std::unique_ptr<ISensorData> Create() override { return std::make_unique<Pressure_Data>(inside_); }
    std::string getName() override { return inside_ ? "InsidePressure" : "OutsidePressure"; }

private:
    bool inside_;
};

} // namespace skyvane
