#pragma once

#include "chart/elements/Frequency.h"
#include "chartmaker/compile/SourceKind.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace skyvane {

/// What airport-frequencies.csv says about an airport.
struct AirportFrequencies {
    FrequencyMap frequencies;
    bool isTowered = false;
    long firstLine = 0;
};

/// By the ident of the airport.
using FrequencyTable = std::unordered_map<std::string, AirportFrequencies>;

/// Reads airport-frequencies.csv of OurAirports, but for the airports of those idents. False when the file can't be
/// read.
bool readFrequencyTable(const std::string& path, const std::unordered_set<std::string>& unwanted,
                        const SourceContext& context, FrequencyTable& table);

/// Megahertz to the nearest kilohertz; nothing outside what aviation radios receive (2 to 400 MHz).
std::optional<Frequency> toFrequency(double megahertz);

} // namespace skyvane
