#include "chartmaker/obstacles/ObstacleFile.h"

#include "chart/elements/ObstructionElement.h"
#include "chartmaker/csv/CsvTable.h"
#include "chartmaker/report/CompileReport.h"
#include "chartmaker/text/SourceText.h"

namespace skyvane {
namespace {

/// Columns of both tables.
enum Column { Latitude, Longitude, Altitude, Height, Lighted };
/// Further ones of the own table.
enum OwnColumn { Accurate = Lighted + 1, Group, Remarks };
/// Further ones of the FAA's.
enum FaaColumn { Accuracy = Lighted + 1, Quantity, Kind, Number, Action };

const CsvTable::Columns ownNeeded{"latitude_deg", "longitude_deg", "altitude_msl_ft"};
const CsvTable::Columns ownOptional{"height_agl_ft", "lighted", "accurate", "group", "remarks"};
const CsvTable::Columns faaNeeded{"LATDEC", "LONDEC", "AMSL"};
const CsvTable::Columns faaOptional{"AGL", "LIGHTING", "ACCURACY", "QUANTITY", "TYPE", "OAS", "ACTION"};

void completeOwn(const CsvTable& table, ObstructionElement& obstacle) {
    obstacle.hasKnownLighting = table[Lighted] == "1";
    obstacle.hasAccuratePosition = table[Accurate] == "1";
    obstacle.isGroup = table[Group] == "1";
    obstacle.remarks = cleanText(table[Remarks], LongestRemarks);
}

/// Lighting "N" is none and "U" unknown; the first letter of the accuracy is that of the position, 1 (20 ft) to 4
/// (250 ft) being good enough for a symbol on a map.
void completeFaa(const CsvTable& table, ObstructionElement& obstacle) {
    const std::string &lighting = table[Lighted], &accuracy = table[Accuracy];
    obstacle.hasKnownLighting = !lighting.empty() && lighting != "N" && lighting != "U";
    obstacle.hasAccuratePosition = !accuracy.empty() && accuracy[0] >= '1' && accuracy[0] <= '4';
    obstacle.isGroup = readWhole(table[Quantity], 0, 1000).value_or(1) > 1;
    obstacle.remarks = cleanText(table[Kind]);
    addRemark(obstacle.remarks, cleanText(table[Number]));
}

struct Layout {
    const CsvTable::Columns& needed;
    const CsvTable::Columns& optional;
    void (*complete)(const CsvTable& table, ObstructionElement& obstacle);
};
const Layout ownLayout{ownNeeded, ownOptional, completeOwn};
const Layout faaLayout{faaNeeded, faaOptional, completeFaa};

void addObstacle(const CsvTable& table, const Layout& layout, const SourceContext& context) {
    constexpr int lowestFeet = -2000, highestFeet = 35000;
    const SourceLine line = table.getLine();
    const auto position = readPosition(table[Latitude], table[Longitude]);
    const auto altitude = readWhole(table[Altitude], lowestFeet, highestFeet);
    if (!position)
        return context.sink.refuse(line, "no position: " + printable(table[Latitude] + ", " + table[Longitude]));
    if (!altitude)
        return context.sink.refuse(line, "no altitude of its top: \"" + printable(table[Altitude]) + "\"");
    if (&layout == &faaLayout && table[Action] == "D")
        return context.sink.refuse(line, "is dismantled");
    const auto height = readWhole(table[Height], 0, highestFeet);
    if (!height && !table[Height].empty())
        context.sink.warn(line, "a height of " + printable(table[Height]) + " ft: taken as unknown");
    auto obstacle = std::make_unique<ObstructionElement>();
    obstacle->position = *position;
    obstacle->altitudeMslFeet = *altitude;
    obstacle->heightAglFeet = height.value_or(0);
    layout.complete(table, *obstacle);
    context.sink.add(std::move(obstacle), line);
}

bool isOfFaa(const std::string& path) {
    LineReader lines(path);
    std::string_view line;
    return lines.next(line) && line.find("LATDEC") != std::string_view::npos;
}

} // namespace

bool readObstacleFile(const std::string& path, const SourceContext& context) {
    const Layout& layout = isOfFaa(path) ? faaLayout : ownLayout;
    CsvTable table(path, layout.needed, layout.optional, context);
    while (table.next())
        addObstacle(table, layout, context);
    return table.isGood();
}

} // namespace skyvane
