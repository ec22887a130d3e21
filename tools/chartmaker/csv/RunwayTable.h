#pragma once

#include "chart/elements/Runway.h"
#include "chartmaker/compile/SourceKind.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace skyvane {

/// What runways.csv says about an airport.
struct AirportRunways {
    struct Row {
        Runway runway;
        long line;
    };
    std::vector<Row> rows;
    std::string remarks; ///< Helipads, closed runways, surfaces and displacements that a runway has no place for.
    long firstLine = 0;
};

/// By the ident of the airport.
using RunwayTable = std::unordered_map<std::string, AirportRunways>;

/// Reads runways.csv of OurAirports. A threshold is where landing begins: a displacement is added to the runway's end.
/// Helipads and closed runways are no runways; they go to the remarks. Airports of unwanted idents are left out. False
/// when the file can't be read.
bool readRunwayTable(const std::string& path, const std::unordered_set<std::string>& unwanted,
                     const SourceContext& context, RunwayTable& table);

} // namespace skyvane
