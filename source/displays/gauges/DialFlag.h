#pragma once

#include "sensors/ISensor.h"

namespace skyvane {

/// How far a dial's reading may be believed, as the pilot sees it.
enum class DialFlag {
    Good,
    Doubtful,  ///< The dial turns yellow, the value stays readable.
    Failed,    ///< The value goes and a red cross with the quantity's name stands over the dial.
    Simulated, ///< The value comes from the position simulator: SIM stands where a failure's name would.
};

/// What the sensor manager knows about the value that a dial is about to show.
struct DialEvidence {
    bool present = false; ///< There is a record.
    bool finite = false;  ///< All its numbers are finite.
    ISensor::WarningLevel warning = ISensor::WRONG;
    bool simulating = false; ///< The position simulator drives the records.
};

/// A value that is missing or isn't a number has failed whatever its sensor says, a simulated one too.
DialFlag decideDialFlag(const DialEvidence& evidence);

constexpr bool isValueShown(DialFlag flag) {
    return flag != DialFlag::Failed;
}

} // namespace skyvane
