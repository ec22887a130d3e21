#pragma once

#include "flightfeed/card/CardParser.h"
#include "flightfeed/flight/ScriptedFlight.h"
#include "tools/flightfeed/ProjectFile.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace skyvane {

inline std::string cardText(const std::string& name) {
    return projectFile("tools/flightfeed/cards/" + name);
}

/// Every state of a card's flight, at that spacing.
inline std::vector<FlightState> fly(const std::string& text, double spacingSeconds) {
    FlightCard card;
    for (const CardError& error : parseCard(text, card))
        ADD_FAILURE() << "line " << error.line << ": " << error.message;
    std::vector<FlightState> states;
    ScriptedFlight flight(card);
    do
        states.push_back(flight.state());
    while (flight.advance(spacingSeconds));
    return states;
}

} // namespace skyvane
