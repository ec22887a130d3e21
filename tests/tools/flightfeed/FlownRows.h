#pragma once

#include <string>
#include <vector>

namespace skyvane {

/// What a procedure asks of a flight, for tests that know procedures and no tools.
struct FlownRow {
    double seconds, latitudeDegrees, longitudeDegrees, altitudeMetres, groundSpeedKnots, headingDegrees;
};

/// The flight of a card, a row each second.
std::vector<FlownRow> flyRows(const std::string& card);

} // namespace skyvane
