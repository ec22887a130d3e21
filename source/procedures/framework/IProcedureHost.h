#pragma once

#include "core/messages/MessageLevel.h"

#include <string>

namespace skyvane {

class Aircraft;
class IChartElementSource;
class SensorManager;

/// What procedures and their factories need of the program around them. Main thread only.
class IProcedureHost {
public:
    virtual ~IProcedureHost() = default;
    /// The charts that are loaded now; null without any. Not to be kept.
    virtual IChartElementSource* getCharts() = 0;
    virtual SensorManager* getSensorManager() = 0;
    virtual Aircraft& getCurrentAircraft() = 0;
    /// A message on the displays; a later one of the same owner replaces it. A negative time-out means none.
    virtual void setMessage(void* owner, const std::string& text, MESSAGECOLOR level, int timeoutMilliseconds) = 0;
    virtual void removeMessage(void* owner) = 0;
};

} // namespace skyvane
