#include "chartmaker/csv/AirportTable.h"

#include "chart/elements/AirportElement.h"
#include "chart/geodesy/GreatCircle.h"
#include "chartmaker/csv/Approaches.h"
#include "chartmaker/csv/CsvTable.h"
#include "chartmaker/region/Region.h"
#include "chartmaker/report/CompileReport.h"
#include "chartmaker/text/SourceText.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace skyvane {
namespace {

enum Column {
    Ident,
    Type,
    Name,
    Latitude,
    Longitude,
    Elevation,
    Country,
    Municipality,
    Icao,
    Iata,
    Gps,
    Local,
    Accuracy
};
const CsvTable::Columns needed{"ident", "type", "name", "latitude_deg", "longitude_deg", "elevation_ft", "iso_country"};
const CsvTable::Columns optional{"municipality", "icao_code", "iata_code", "gps_code", "local_code", "accuracy"};

/// Further from the reference point than any runway ends.
constexpr double farthestThresholdMetres = 15000.0;

/// "US-0123": made up for the table, since the place has no code of its own.
bool isInvented(const std::string& ident) {
    return ident.size() > 3 && ident[2] == '-' && ident.find_first_not_of("0123456789", 3) == std::string::npos;
}

std::string identOf(const CsvTable& table) {
    const bool invented = isInvented(table[Ident]);
    for (const Column column : {Icao, invented ? Gps : Ident, invented ? Local : Ident})
        if (!table[column].empty())
            return cleanText(table[column]);
    return cleanText(table[Ident]);
}

std::string remarksOf(const CsvTable& table, const std::string& ident) {
    std::string remarks = cleanText(table[Municipality]);
    const std::pair<const char*, size_t> codes[] = {{"IATA", Iata}, {"GPS", Gps}, {"Local", Local}};
    for (const auto& [name, column] : codes)
        if (!table[column].empty() && table[column] != ident)
            addRemark(remarks, std::string(name) + " code: " + cleanText(table[column]));
    return remarks;
}

/// Whether the name has one of the words, each between blanks or other separators.
bool hasWord(const std::string& name, std::initializer_list<const char*> words) {
    std::string spaced = " " + upperCase(name) + " ";
    std::replace_if(
        spaced.begin(), spaced.end(), [](char c) { return c == '-' || c == '/' || c == '(' || c == ')' || c == ','; },
        ' ');
    return std::any_of(words.begin(), words.end(), [&](const char* word) {
        return spaced.find(std::string(" ") + word + " ") != std::string::npos;
    });
}

void readFlags(const CsvTable& table, AirportElement& airport) {
    airport.accuracy = static_cast<uint8_t>(readWhole(table[Accuracy], 0, 3).value_or(0));
    airport.isClosed = table[Type] == "closed";
    airport.isHeliport = table[Type] == "heliport";
    airport.hasGliders = hasWord(airport.name, {"GLIDER", "GLIDERPORT", "GLIDING", "ULTRALIGHT", "MICROLIGHT", "ULM"});
    airport.isMilitary = hasWord(airport.name, {"AIR BASE", "AIR FORCE BASE", "AFB", "NAVAL AIR STATION", "MILITARY",
                                                "ARMY AIRFIELD", "ARMY HELIPORT"}) &&
                         !hasWord(airport.name, {"FORMER"});
}

bool isKnownType(const std::string& type) {
    static const std::set<std::string> types{"heliport",      "small_airport", "closed",     "medium_airport",
                                             "large_airport", "seaplane_base", "balloonport"};
    return types.count(type) > 0;
}

class AirportJoin {
public:
    AirportJoin(const SourceContext& context, RunwayTable& runways, const std::string& runwaysPath,
                FrequencyTable& frequencies)
        : context_(context), runways_(runways), runwaysPath_(runwaysPath), frequencies_(frequencies) {}

    void join(const std::string& ident, AirportElement& airport) {
        const auto runways = runways_.find(ident);
        if (runways != runways_.end()) {
            for (AirportRunways::Row& row : runways->second.rows)
                joinRunway(row, airport);
            addRemark(airport.remarks, runways->second.remarks);
            runways_.erase(runways);
        }
        const auto frequencies = frequencies_.find(ident);
        if (frequencies != frequencies_.end()) {
            airport.frequencies = std::move(frequencies->second.frequencies);
            airport.isTowered = frequencies->second.isTowered;
            frequencies_.erase(frequencies);
        }
        joinApproaches(airport);
    }

private:
    void joinRunway(AirportRunways::Row& row, AirportElement& airport) {
        for (RunwayEnd& end : row.runway.ends) {
            if (!end.isThresholdKnown || calcDistance2(end.threshold, airport.position) < farthestThresholdMetres)
                continue;
            end.isThresholdKnown = false;
            end.threshold = ChartPosition();
            context_.sink.warn({runwaysPath_, row.line},
                               "a threshold far from " + printable(airport.ident) + ": taken as unknown");
        }
        airport.runways.push_back(std::move(row.runway));
    }

    const SourceContext& context_;
    RunwayTable& runways_;
    const std::string& runwaysPath_;
    FrequencyTable& frequencies_;
};

/// Tells of rows whose airport isn't there, in the order of the file.
template <class Table>
void refuseUnjoined(const Table& table, const std::string& path, const char* what, const SourceContext& context) {
    std::map<long, std::string> lines;
    for (const auto& [ident, rows] : table)
        lines.emplace(rows.firstLine, ident);
    for (const auto& [line, ident] : lines)
        context.sink.refuse({path, line},
                            what + (" of \"" + printable(ident)) + "\", which is no airport of the table");
}

void addAirport(const CsvTable& table, const SourceContext& context, AirportJoin& join) {
    const auto position = readPosition(table[Latitude], table[Longitude]);
    if (!position)
        return context.sink.refuse(table.getLine(),
                                   "no position: " + printable(table[Latitude] + ", " + table[Longitude]));
    if (!isKnownType(table[Type]))
        context.sink.warn(table.getLine(),
                          "the type \"" + printable(table[Type]) + "\" is unknown: taken as an airport");
    auto airport = std::make_unique<AirportElement>();
    airport->position = *position;
    airport->ident = identOf(table);
    airport->name = cleanText(table[Name]);
    airport->remarks = remarksOf(table, airport->ident);
    const auto feet = readWhole(table[Elevation], -2000, 30000);
    if (!feet && !table[Elevation].empty())
        context.sink.warn(table.getLine(), "an elevation of " + printable(table[Elevation]) + " ft: taken as unknown");
    airport->elevationFeet = feet.value_or(AirportElement::UnknownElevation);
    readFlags(table, *airport);
    join.join(table[Ident], *airport);
    context.sink.add(std::move(airport), table.getLine(), {table[Country], {}});
}

} // namespace

std::optional<std::unordered_set<std::string>> findAirportsOutside(const std::string& path,
                                                                   const SourceContext& context) {
    std::unordered_set<std::string> outside;
    if (context.region.isWorld())
        return outside;
    Region region = context.region;
    CsvTable table(path, needed, optional, context);
    while (table.next()) {
        const auto position = readPosition(table[Latitude], table[Longitude]);
        if (position && !region.takes(table[Country], *position))
            outside.insert(table[Ident]);
    }
    return table.isGood() ? std::optional(std::move(outside)) : std::nullopt;
}

bool readAirportTable(const std::string& path, const SourceContext& context, RunwayTable runways,
                      const std::string& runwaysPath, FrequencyTable frequencies, const std::string& frequenciesPath) {
    CsvTable table(path, needed, optional, context);
    AirportJoin join(context, runways, runwaysPath, frequencies);
    while (table.next())
        addAirport(table, context, join);
    if (!table.isGood())
        return false;
    refuseUnjoined(runways, runwaysPath, "a runway", context);
    refuseUnjoined(frequencies, frequenciesPath, "a frequency", context);
    return true;
}

} // namespace skyvane
