#pragma once

#include "flightfeed/flight/FlightState.h"

#include <ostream>

namespace skyvane {

/// Writes states as lines of comma-separated values, so that what a display shows can be held against them.
class TruthPrinter {
public:
    explicit TruthPrinter(std::ostream& out) : out_(out) {}

    void printHeader();
    void print(const FlightState& state);

private:
    std::ostream& out_;
};

} // namespace skyvane
