#include "chartmaker/csv/RunwayTable.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"
#include "chartmaker/csv/CsvTable.h"
#include "chartmaker/csv/Surfaces.h"
#include "chartmaker/report/CompileReport.h"
#include "chartmaker/text/SourceText.h"
#include "core/text/Numbers.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

enum Column { AirportIdent, Length, Width, SurfaceText, Lighted, Closed, FirstEnd };
/// Of each end, from FirstEnd on.
enum EndColumn { Ident, Latitude, Longitude, Elevation, Heading, Displacement, EndColumns };
constexpr size_t Accuracy = FirstEnd + 2 * EndColumns;

const CsvTable::Columns needed{"airport_ident", "length_ft", "width_ft", "surface", "lighted", "closed"};
const CsvTable::Columns optional{"le_ident",        "le_latitude_deg", "le_longitude_deg",
                                 "le_elevation_ft", "le_heading_degT", "le_displaced_threshold_ft",
                                 "he_ident",        "he_latitude_deg", "he_longitude_deg",
                                 "he_elevation_ft", "he_heading_degT", "he_displaced_threshold_ft",
                                 "accuracy"};

constexpr int longestFeet = 60000;
constexpr size_t mostRunways = 200;

const std::string& endValue(const CsvTable& table, size_t end, EndColumn column) {
    return table[FirstEnd + end * EndColumns + column];
}

/// "H1", "H", "H2A": a pad, not a strip.
bool isHelipad(const std::string& ident) {
    return !ident.empty() && ident[0] == 'H' &&
           ident.find_first_not_of("0123456789", 1) >= std::min(ident.size() - 1, size_t{3});
}

/// A size in feet, 0 when it isn't known; a value that can't be one is told.
uint32_t readFeet(const CsvTable& table, size_t column, const SourceContext& context) {
    const std::string& text = table[column];
    const std::optional<int> feet = readWhole(text, 0, longestFeet);
    if (!feet && !text.empty())
        context.sink.warn(table.getLine(), "a runway of " + printable(text) + " ft: taken as unknown");
    return static_cast<uint32_t>(feet.value_or(0));
}

void readEnd(const CsvTable& table, size_t number, RunwayEnd& end) {
    end.name = cleanText(endValue(table, number, Ident));
    const auto position = readPosition(endValue(table, number, Latitude), endValue(table, number, Longitude));
    end.isThresholdKnown = position.has_value();
    end.threshold = position.value_or(ChartPosition());
    const auto feet = readWhole(endValue(table, number, Elevation), -2000, 30000);
    end.isElevationKnown = feet.has_value();
    end.elevationFeet = feet.value_or(0);
}

/// The direction that a name tells: "09L", "9", "NE".
std::optional<double> directionOfName(const std::string& name) {
    static const std::vector<std::string> winds{"N", "NE", "E", "SE", "S", "SW", "W", "NW"};
    const auto wind = std::find(winds.begin(), winds.end(), name);
    if (wind != winds.end())
        return 45.0 * static_cast<double>(wind - winds.begin());
    const size_t digits = std::min(name.find_first_not_of("0123456789"), name.size());
    const auto tens = readWhole(std::string_view(name).substr(0, digits), 1, 36);
    return tens && digits <= 2 ? std::optional<double>(*tens * 10.0) : std::nullopt;
}

/// The true direction of the first end from the best that is known of either.
std::optional<double> findDirection(const CsvTable& table, const Runway& runway) {
    const RunwayEnd &first = runway.ends[0], &second = runway.ends[1];
    if (const auto heading = readNumber(endValue(table, 0, Heading), 0.0, 360.0))
        return heading;
    if (const auto heading = readNumber(endValue(table, 1, Heading), 0.0, 360.0))
        return *heading + 180.0;
    if (first.isThresholdKnown && second.isThresholdKnown && calcDistance2(first.threshold, second.threshold) > 1.0)
        return calcBearing2(first.threshold, second.threshold);
    if (const auto named = directionOfName(first.name))
        return named;
    if (const auto named = directionOfName(second.name))
        return *named + 180.0;
    return std::nullopt;
}

/// The line on which thresholds are moved: that of both ends where they are known, since a heading may be of another
/// runway or another end.
double displacementDirection(const Runway& runway, double directionDegrees) {
    constexpr double nearestEndsMetres = 50.0;
    const RunwayEnd &first = runway.ends[0], &second = runway.ends[1];
    const bool isLine = first.isThresholdKnown && second.isThresholdKnown &&
                        calcDistance2(first.threshold, second.threshold) > nearestEndsMetres;
    return isLine ? calcBearing2(first.threshold, second.threshold) : directionDegrees;
}

/// Moves a threshold from the end of the runway to where landing begins.
void displace(const CsvTable& table, size_t number, double directionDegrees, Runway& runway,
              const SourceContext& context) {
    const std::string& text = endValue(table, number, Displacement);
    const double longest = runway.lengthFeet > 0 ? runway.lengthFeet : longestFeet;
    const std::optional<double> feet = readNumber(text, 0.0, longest);
    RunwayEnd& end = runway.ends[number];
    if (!feet && !text.empty())
        context.sink.warn(table.getLine(), "a threshold displaced by " + printable(text) + " ft: left at the end");
    if (!feet || !end.isThresholdKnown)
        return;
    const double radians = directionDegrees / DegreesPerRadian;
    const double metres = *feet * MetresPerFoot * (number == 0 ? 1.0 : -1.0);
    end.threshold = Vector3df642ChartPosition(
        end.threshold, irr::core::vector3d<double>(std::sin(radians) * metres, 0.0, std::cos(radians) * metres));
    end.threshold.longitude = Angle180(end.threshold.longitude);
}

std::string sizeText(const Runway& runway) {
    return std::to_string(runway.lengthFeet) + " x " + std::to_string(runway.widthFeet) + " ft";
}

std::string displacementText(const CsvTable& table) {
    std::string text;
    for (size_t end = 0; end < 2; ++end)
        if (const auto feet = readWhole(endValue(table, end, Displacement), 1, longestFeet))
            text += "\nRWY " + cleanText(endValue(table, end, Ident)) + ": threshold displaced " +
                    std::to_string(*feet) + " ft";
    return text.empty() ? text : text.substr(1);
}

/// So that no end is called after a direction that nobody knows.
void nameUnknownEnds(Runway& runway) {
    const std::string known = runway.ends[0].name + runway.ends[1].name;
    for (RunwayEnd& end : runway.ends)
        if (end.name.empty())
            end.name = known.empty() ? "?" : known;
}

void addRow(const CsvTable& table, const SourceContext& context, AirportRunways& airport) {
    Runway runway;
    runway.lengthFeet = readFeet(table, Length, context);
    runway.widthFeet = readFeet(table, Width, context);
    runway.surface = readSurface(table[SurfaceText]);
    runway.hasLights = table[Lighted] == "1";
    runway.accuracy = static_cast<uint8_t>(readWhole(table[Accuracy], 0, 3).value_or(0));
    for (size_t end = 0; end < runway.ends.size(); ++end)
        readEnd(table, end, runway.ends[end]);
    const std::string &first = runway.ends[0].name, &second = runway.ends[1].name;
    const std::string name = "RWY " + first + (second.empty() ? "" : "/" + second);
    const std::string surface = cleanText(table[SurfaceText]);
    if (second.empty() && isHelipad(first))
        return addRemark(airport.remarks, "Helipad " + first + ": " + sizeText(runway) + (surface.empty() ? "" : ", ") +
                                              surface + (table[Closed] == "1" ? ", closed" : ""));
    if (table[Closed] == "1")
        return addRemark(airport.remarks, name + " closed");
    if (runway.surface == Runway::UnknownSurface && !surface.empty())
        addRemark(airport.remarks, name + " surface: " + surface);
    const std::optional<double> direction = findDirection(table, runway);
    if (direction) {
        runway.directionDegrees = static_cast<uint32_t>(roundHalfAway(Angle0to360(*direction))) % 360;
        const double line = displacementDirection(runway, *direction);
        displace(table, 0, line, runway, context);
        displace(table, 1, line, runway, context);
    } else
        nameUnknownEnds(runway);
    addRemark(airport.remarks, displacementText(table));
    if (airport.rows.size() >= mostRunways)
        return context.sink.refuse(table.getLine(), "more runways than an airport can have");
    airport.rows.push_back({std::move(runway), table.getLine().number});
}

} // namespace

bool readRunwayTable(const std::string& path, const std::unordered_set<std::string>& unwanted,
                     const SourceContext& context, RunwayTable& table) {
    CsvTable rows(path, needed, optional, context);
    while (rows.next()) {
        if (unwanted.count(rows[AirportIdent]) > 0)
            continue;
        AirportRunways& airport = table[rows[AirportIdent]];
        if (airport.firstLine == 0)
            airport.firstLine = rows.getLine().number;
        addRow(rows, context, airport);
    }
    return rows.isGood();
}

} // namespace skyvane
