#pragma once

#include "chartmaker/csv/FrequencyTable.h"
#include "chartmaker/csv/RunwayTable.h"

#include <optional>
#include <string>
#include <unordered_set>

namespace skyvane {

/// The idents of the airports outside the region, which nobody wants to hear of. Nothing when the file can't be read.
std::optional<std::unordered_set<std::string>> findAirportsOutside(const std::string& path,
                                                                   const SourceContext& context);

/// Reads airports.csv of OurAirports into the sink, with the runways and frequencies that join on their ident; what
/// joins nothing is refused. False when the file can't be read.
///
/// The ident is the ICAO code where there is one, else the table's own; an own one that its makers have invented
/// ("US-0123") gives way to a code that a pilot may know. The codes that aren't used go to the remarks.
bool readAirportTable(const std::string& path, const SourceContext& context, RunwayTable runways,
                      const std::string& runwaysPath, FrequencyTable frequencies, const std::string& frequenciesPath);

} // namespace skyvane
