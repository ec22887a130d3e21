#pragma once

#include "sensors/simulators/FlightGearData.h"
#include "sensors/simulators/SimulatorLink.h"

namespace skyvane {

/// Hears FlightGear's stream. A datagram of another length is logged and dropped; of a flood of them ten a second are.
class FlightGearSocket {
public:
    static constexpr int BufferBytes = 1680;
    enum class Result { Nothing, Dropped, Data };

    explicit FlightGearSocket(int port) : link_("FlightGearSocket", port, BufferBytes) {}

    /// Takes one waiting datagram; only Data changes the data.
    Result recv(FlightGearData& data);
    /// The same for a datagram that is at hand.
    bool take(const void* bytes, size_t length, FlightGearData& data);
    /// -1 when the port couldn't be had.
    int getBoundPort() const { return link_.getBoundPort(); }

private:
    void logWrongLength(size_t length);

    SimulatorLink link_;
    unsigned logSecond_ = 0;
    int linesInSecond_ = 0;
};

} // namespace skyvane
