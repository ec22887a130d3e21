#include "chartmaker/csv/OurAirports.h"

#include "chartmaker/csv/AirportTable.h"
#include "chartmaker/csv/NavaidTable.h"
#include "core/files/Paths.h"

#include <filesystem>

namespace skyvane {
namespace {

/// The path of a table in the folder; empty, with a warning, when it isn't there.
std::string findTable(const std::string& folder, const std::string& name, const SourceContext& context) {
    const std::string plain = folder + "/" + name;
    for (const std::string& path : {plain, plain + ".gz"})
        if (fileExist(path))
            return path;
    context.sink.warn({plain}, "isn't there, nor packed as .gz");
    return {};
}

} // namespace

bool readOurAirports(const std::string& folder, const SourceContext& context) {
    std::error_code error;
    if (std::filesystem::is_regular_file(folder, error)) {
        context.sink.refuse({folder}, "is a file: --airports wants the folder that holds the tables");
        return false;
    }
    const std::string airports = findTable(folder, "airports.csv", context);
    if (airports.empty())
        return false;
    const std::string runwaysPath = findTable(folder, "runways.csv", context);
    const std::string frequenciesPath = findTable(folder, "airport-frequencies.csv", context);
    const std::string navaids = findTable(folder, "navaids.csv", context);
    const auto outside = findAirportsOutside(airports, context);
    RunwayTable runways;
    FrequencyTable frequencies;
    return outside && (runwaysPath.empty() || readRunwayTable(runwaysPath, *outside, context, runways)) &&
           (frequenciesPath.empty() || readFrequencyTable(frequenciesPath, *outside, context, frequencies)) &&
           readAirportTable(airports, context, std::move(runways), runwaysPath, std::move(frequencies),
                            frequenciesPath) &&
           (navaids.empty() || readNavaidTable(navaids, context));
}

} // namespace skyvane
