#pragma once

#include "procedures/aircraft/profiles/Aircraft.h"
#include "procedures/framework/IProcedureHost.h"
#include "sensors/SensorFakes.h"

namespace skyvane {

/// Charts, an aircraft and sensors that a test brings. Call load of the rig before sensors are asked.
class ProcedureHost : public IProcedureHost {
public:
    IChartElementSource* getCharts() override { return charts; }
    SensorManager* getSensorManager() override { return &rig.manager; }
    Aircraft& getCurrentAircraft() override { return aircraft; }
    void setMessage(void*, const std::string& text, MESSAGECOLOR, int) override { message = text; }
    void removeMessage(void*) override { message.clear(); }

    IChartElementSource* charts = nullptr;
    Aircraft aircraft;
    std::string message;
    ManagerRig rig;
};

} // namespace skyvane
