#include "sensors/simulators/RecordAges.h"

#include "core/time/Time.h"

#include <cstddef>

namespace skyvane {
namespace {

bool isType(ISensorData::Type type) {
    return type >= 0 && type < ISensorData::TypeCount;
}

} // namespace

bool RecordAges::Arrival::isFresh(unsigned nowMs) const {
    return came && TimeDiff(nowMs, timeMs) <= FreshMilliseconds;
}

void RecordAges::markRecord(ISensorData::Type type, unsigned nowMs) {
    const auto index = static_cast<size_t>(type);
    records_[index] = {true, nowMs};
    updated_[index] = true;
}

bool RecordAges::wasUpdated(ISensorData::Type type) const {
    return isType(type) && updated_[static_cast<size_t>(type)];
}

bool RecordAges::isFresh(ISensorData::Type type, unsigned nowMs) const {
    return isType(type) && records_[static_cast<size_t>(type)].isFresh(nowMs);
}

} // namespace skyvane
