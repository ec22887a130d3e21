#pragma once

#include "flightfeed/send/FlightRecords.h"
#include "flightfeed/send/IProtocolSender.h"

#include <cstdint>
#include <vector>

namespace skyvane {

/// Speaks as another copy of the program that forwards its records, all of an instant in one datagram;
/// docs/formats/sdat-packet.md has the layout. Time stamps and sequence numbers follow the time of the flight, so a
/// loop looks like a sender that began anew.
class SDatSender : public IProtocolSender {
public:
    static constexpr int PORT = 1991;

    void send(const FlightState& state, IDatagramSink& sink) override;

private:
    void add(ISensorData& record);

    FlightRecords records_;
    std::vector<uint8_t> datagram_;
    uint8_t sequenceNumber_ = 0;
};

} // namespace skyvane
