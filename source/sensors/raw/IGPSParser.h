#pragma once

#include "sensors/records/GPS_Data.h"

namespace skyvane {

/// Makes receiver records out of a stream of bytes.
class IGPSParser {
public:
    virtual ~IGPSParser() = default;
    /// Takes one byte; true when it completed a sentence that changed the data.
    virtual bool doStep(char byte) = 0;
    virtual GPS_Data getGPSData() = 0;
};

} // namespace skyvane
