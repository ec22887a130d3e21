#pragma once

#include "flightfeed/send/GDL90Encoder.h"
#include "flightfeed/send/IProtocolSender.h"

namespace skyvane {

/// Speaks as an ADS-B receiver: heartbeat, own ship, traffic and geometric altitude once a second of the flight, a
/// weather text every five, and with every state what its maker adds. A frame for each message, all those of an instant
/// in datagrams of at most some hundred bytes.
class GDL90Sender : public IProtocolSender {
public:
    static constexpr int PORT = 4000;

    /// Whose box it is. Stratux and ForeFlight boxes tell that their altitude is above mean sea level, the others
    /// say nothing and give that above the ellipsoid.
    enum class Maker { Stratux, ForeFlight, Levil, Talos };

    explicit GDL90Sender(Maker maker) : maker_(maker) {}
    void send(const FlightState& state, IDatagramSink& sink) override;

private:
    void addEverySecond(const FlightState& state);
    void addUplink(const FlightState& state);
    void addExtension(const FlightState& state);
    void flush(IDatagramSink& sink);

    Maker maker_;
    GDL90Encoder encoder_;
    long lastSecond_ = -1;
};

} // namespace skyvane
