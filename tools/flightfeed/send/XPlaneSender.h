#pragma once

#include "flightfeed/send/IProtocolSender.h"

namespace skyvane {

/// X-Plane's data output, one datagram per instant; docs/formats/xplane-data.md has the layout.
///
/// The traffic groups are left out without traffic, the landing beams without a landing system.
class XPlaneSender : public IProtocolSender {
public:
    static constexpr int PORT = 49000;

    void send(const FlightState& state, IDatagramSink& sink) override;
};

} // namespace skyvane
