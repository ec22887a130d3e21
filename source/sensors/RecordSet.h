#pragma once

#include "sensors/records/ISensorData.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace skyvane {

class SensorManager;

/// A record of each type, filled from byte forms that came from a file or a network.
class RecordSet {
public:
    /// The records are the manager's default ones.
    explicit RecordSet(SensorManager& sensors);

    /// Takes a form over. False, and no change, for a form that is too short for its type or that holds a number which
    /// isn't finite where the record has no meaning for one.
    bool take(ISensorData::Type type, const uint8_t* form, size_t length);
    /// Null for a number that is no type.
    ISensorData* get(ISensorData::Type type) const;

private:
    std::array<std::unique_ptr<ISensorData>, ISensorData::TypeCount> records_;
    std::array<size_t, ISensorData::TypeCount> leastLengths_{};
};

} // namespace skyvane
