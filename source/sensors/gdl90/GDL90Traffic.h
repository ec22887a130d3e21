#pragma once

#include <cstddef>
#include <cstdint>
#include <map>

namespace skyvane {

class Traffic_Data;
class TrafficGDL90Message;

/// Keeps the traffic picture: one element for each address type and address, gone when it wasn't heard for 20 seconds.
/// Times are of Secs(). Allocates for new targets only.
class GDL90Traffic {
public:
    static constexpr double SilentSeconds = 20.0;
    /// More than any receiver hears. What comes beyond it waits until others have gone.
    static constexpr size_t MaxTargets = 2000;

    /// A report without a position changes nothing. The record is always the same one.
    void take(const TrafficGDL90Message& report, double now, Traffic_Data& traffic);
    /// Removes the targets that have fallen silent.
    void expire(double now, Traffic_Data& traffic);

private:
    std::map<uint32_t, double> lastSeen_; ///< By the key of the element.
};

} // namespace skyvane
