#pragma once

#include "flightfeed/send/IProtocolSender.h"

#include <string>

namespace skyvane {

/// Speaks as a GPS receiver: the sentences GGA, GSA and RMC (docs/formats/nmea.md), at most five times per second of
/// the flight. Without noise: every place is exact, and ten satellites are always in sight.
class NmeaSender : public IProtocolSender {
public:
    /// Over TCP; the port that is registered for NMEA sentences.
    static constexpr int PORT = 10110;

    void send(const FlightState& state, IDatagramSink& sink) override;

private:
    std::string text_;
    long lastFifth_ = -1;
};

} // namespace skyvane
