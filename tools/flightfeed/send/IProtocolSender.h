#pragma once

#include "flightfeed/flight/FlightState.h"

#include <cstddef>

namespace skyvane {

/// Where datagrams go: the network, or a test.
class IDatagramSink {
public:
    virtual ~IDatagramSink() = default;
    virtual void send(const void* bytes, size_t count) = 0;
};

/// Speaks one protocol: turns the state of an instant into the datagrams of that instant. One file per protocol.
class IProtocolSender {
public:
    virtual ~IProtocolSender() = default;
    virtual void send(const FlightState& state, IDatagramSink& sink) = 0;
};

} // namespace skyvane
