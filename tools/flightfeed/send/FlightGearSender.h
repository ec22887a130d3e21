#pragma once

#include "flightfeed/send/IProtocolSender.h"

namespace skyvane {

/// The stream that packaging/flightgear/skyvane.xml makes FlightGear send: 168 bytes, big-endian;
/// docs/formats/flightgear-stream.md has the layout.
class FlightGearSender : public IProtocolSender {
public:
    static constexpr int PORT = 6789;
    static constexpr size_t DATAGRAM_BYTES = 168;

    void send(const FlightState& state, IDatagramSink& sink) override;
};

} // namespace skyvane
