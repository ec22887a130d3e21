#pragma once

#include "sensors/records/ISensorData.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace skyvane {

/// Tells what is new among records that came from another copy of the program and shall be sent on.
///
/// Copies that send to each other, or to a whole network, get back what they sent. Sent on again it would go round for
/// ever, and stay fresh after its source has gone. So a form that was sent before isn't sent again. Only records
/// without a time stamp may look the same twice: they go on while others from the same sensor are new.
class RelayedForms {
public:
    /// Whether to send the form on; it counts as sent then. The time is of MilliSecs().
    bool isNews(ISensorData::Type type, const uint8_t* form, size_t length, unsigned nowMs);

private:
    /// More than are on their way round at a time.
    static constexpr size_t Remembered = 64;

    struct Sent {
        std::array<uint64_t, Remembered> hashes{};
        size_t next = 0;
    };

    bool remember(Sent& sent, uint64_t hash);

    std::array<Sent, ISensorData::TypeCount> sent_;
    std::optional<unsigned> lastNewsMs_; ///< Of a record with a time stamp.
};

} // namespace skyvane
