#pragma once

#include "flightfeed/card/FlightCard.h"
#include "flightfeed/flight/FlightModel.h"
#include "flightfeed/flight/IFlightSource.h"
#include "flightfeed/flight/IManoeuvre.h"
#include "flightfeed/flight/Pilot.h"

#include <memory>
#include <vector>

namespace skyvane {

/// Flies a card that was read without errors, in steps of at most a hundredth of a second.
///
///     FlightCard card;
///     if (parseCard(text, card).empty()) {
///         ScriptedFlight flight(card);
///         do show(flight.state()); while (flight.advance(1.0 / 30.0));
///     }
class ScriptedFlight : public IFlightSource {
public:
    explicit ScriptedFlight(FlightCard card);

    const FlightState& state() const override { return state_; }
    bool advance(double seconds) override;
    void restart() override;

private:
    bool step(double seconds);
    bool nextManoeuvre();
    void moveTraffic(double seconds);
    void publish();

    FlightCard card_;
    FlightModel model_;
    Pilot pilot_;
    std::unique_ptr<IManoeuvre> manoeuvre_;
    size_t nextStep_ = 0;
    double manoeuvreSeconds_ = 0.0;
    std::vector<CardTraffic> traffic_;
    FlightState state_;
};

} // namespace skyvane
