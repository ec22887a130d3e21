#include "displays/gauges/DialFlag.h"

namespace skyvane {

DialFlag decideDialFlag(const DialEvidence& evidence) {
    if (!evidence.present || !evidence.finite)
        return DialFlag::Failed;
    if (evidence.simulating)
        return DialFlag::Simulated;
    if (evidence.warning == ISensor::GOOD)
        return DialFlag::Good;
    return evidence.warning == ISensor::MAYBE_WRONG ? DialFlag::Doubtful : DialFlag::Failed;
}

} // namespace skyvane
