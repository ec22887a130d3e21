#pragma once

#include "flightfeed/flight/IFlightSource.h"

#include <string>

namespace skyvane {

/// A flight that stands still in the air: every value stays, only the time of day goes on.
class HeldState : public IFlightSource {
public:
    /// Level at 100 knots, 3000 feet, heading north, over open ocean.
    HeldState();

    /// Sets values from "pitch=10,roll=20,altitude_ft=3500". False, with the words in `error`, when a name is unknown
    /// or a number isn't one; nothing is changed then. What isn't set follows from what is: ground speed and track from
    /// airspeed and heading, pressure and temperature from altitude, turn rate and load from a coordinated turn.
    bool set(const std::string& text, std::string& error);

    const FlightState& state() const override { return state_; }
    bool advance(double seconds) override;
    void restart() override;

private:
    FlightState first_;
    FlightState state_;
};

} // namespace skyvane
