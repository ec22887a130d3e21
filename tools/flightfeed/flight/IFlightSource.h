#pragma once

#include "flightfeed/flight/FlightState.h"

namespace skyvane {

/// A flight that is stepped by its reader: a card that is flown, a recording, a held state.
///
/// No wall clock inside: the same steps give the same states.
class IFlightSource {
public:
    virtual ~IFlightSource() = default;

    /// The state at the current time. Valid until the next advance() or restart().
    virtual const FlightState& state() const = 0;

    /// Moves the time on. False when the flight has ended: the state then stays the last one.
    virtual bool advance(double seconds) = 0;

    /// Back to the first state.
    virtual void restart() = 0;
};

} // namespace skyvane
