#pragma once

#include "flightfeed/flight/FlightState.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace skyvane {

/// A recorded FlightGear stream: records of an arrival time in seconds (64-bit float, little-endian) and the 168 bytes
/// of the datagram, which are replayed as they are.
class DatagramRecording {
public:
    static constexpr size_t RECORD_BYTES = 176;

    /// False, with the reason in `error`, when the length isn't a whole number of records, there are none, or a time
    /// isn't one or goes back. The recording is empty then.
    bool read(std::string bytes, std::string& error);

    size_t count() const { return bytes_.size() / RECORD_BYTES; }
    /// Seconds since the first datagram.
    double seconds(size_t index) const { return arrival(index) - arrival(0); }
    const uint8_t* datagram(size_t index) const;

private:
    double arrival(size_t index) const;

    std::string bytes_;
};

/// What a datagram of FlightGear's stream says.
FlightState readFlightGearDatagram(const uint8_t* bytes);

} // namespace skyvane
