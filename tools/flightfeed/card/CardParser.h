#pragma once

#include "flightfeed/card/FlightCard.h"

#include <string>
#include <vector>

namespace skyvane {

/// What is wrong with a card: "line 7: ...". Lines count from 1.
struct CardError {
    int line;
    std::string message;
};

/// Reads a card; docs/flightfeed.md describes the lines. Every error is told, in the order of the lines; the card is
/// to be flown only when there is none.
std::vector<CardError> parseCard(const std::string& text, FlightCard& card);

} // namespace skyvane
