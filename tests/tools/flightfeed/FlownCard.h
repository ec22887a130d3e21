#pragma once

#include "flightfeed/card/CardParser.h"
#include "flightfeed/flight/ScriptedFlight.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

namespace skyvane {

inline std::string cardText(const std::string& name) {
    std::ifstream in(std::string(SKYVANE_SOURCE_DIR) + "/tools/flightfeed/cards/" + name);
    return {std::istreambuf_iterator<char>(in), {}};
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
