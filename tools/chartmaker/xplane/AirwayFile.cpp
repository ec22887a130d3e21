#include "chartmaker/xplane/AirwayFile.h"

#include "chart/elements/AirwayElement.h"
#include "chart/geodesy/GreatCircle.h"
#include "chartmaker/compile/PointIndex.h"
#include "chartmaker/report/CompileReport.h"
#include "chartmaker/text/SourceText.h"
#include "chartmaker/xplane/XPlaneRows.h"

#include <optional>

namespace skyvane {
namespace {

using Values = std::vector<std::string_view>;

/// From this version on ends are named, not placed.
constexpr int namedEndsVersion = 1100;
constexpr double feetPerLevel = 100.0;

/// Both ends of a segment; `point` is PointIndex::None for an end that no fix or navaid is known at.
struct Ends {
    ChartPosition places[2];
    size_t points[2] = {PointIndex::None, PointIndex::None};
};

/// What follows the ends.
struct Rest {
    std::string_view direction = "N"; ///< "F" and "B": one way, forwards or backwards.
    std::string_view level, base, top, name;
};

std::optional<Ends> placedEnds(const Values& values, const PointIndex& points) {
    constexpr size_t valuesOfEnd = 3;
    Ends ends;
    for (size_t end = 0; end < 2; ++end) {
        const auto place = readPosition(values[end * valuesOfEnd + 1], values[end * valuesOfEnd + 2]);
        if (!place)
            return std::nullopt;
        ends.places[end] = *place;
        ends.points[end] = points.findNearest(cleanText(values[end * valuesOfEnd]), *place, SameNavaidMetres);
    }
    return ends;
}

/// The points that the ident, region and kind (2 NDB, 3 VHF navaid, 11 fix) of an end may mean.
std::vector<size_t> candidatesOf(const Values& values, size_t first, const PointIndex& points) {
    constexpr size_t mostCandidates = 64;
    const std::string region = cleanText(values[first + 1]);
    const auto kind = readWhole(values[first + 2], 0, 99);
    std::vector<size_t> candidates;
    for (const size_t number : points.find(cleanText(values[first]))) {
        const PointIndex::Point& point = points[number];
        const bool isNdb = point.type == IChartElement::NDB, isFix = point.type == IChartElement::WAYPOINT;
        // A DME alone is a VHF navaid there, and a fix without region here.
        const bool fitsKind = kind == 2    ? isNdb
                              : kind == 3  ? point.type == IChartElement::VOR || (isFix && point.icaoRegion.empty())
                              : kind == 11 ? isFix
                                           : false;
        const bool fitsRegion = point.icaoRegion.empty() || point.icaoRegion == region;
        if (fitsKind && fitsRegion && candidates.size() < mostCandidates)
            candidates.push_back(number);
    }
    return candidates;
}

/// The pair of candidates that lies closest together.
std::optional<Ends> namedEnds(const Values& values, const PointIndex& points) {
    constexpr size_t secondEnd = 3;
    std::optional<Ends> ends;
    double nearest = LongestSegmentMetres;
    const std::vector<size_t> second = candidatesOf(values, secondEnd, points);
    for (const size_t from : candidatesOf(values, 0, points))
        for (const size_t to : second) {
            const double metres = calcDistance2(points[from].position, points[to].position);
            if (metres >= nearest)
                continue;
            nearest = metres;
            ends = Ends{{points[from].position, points[to].position}, {from, to}};
        }
    return ends;
}

AirwayElement::Altitude readLevel(std::string_view text) {
    const auto level = readNumber(text, 1.0, 2000.0);
    AirwayElement::Altitude altitude;
    altitude.isAvailable = level.has_value();
    altitude.feet = static_cast<int32_t>(level.value_or(0.0) * feetPerLevel);
    return altitude;
}

void noteUse(const Ends& ends, const AirwayElement& airway, PointIndex& points) {
    for (const size_t point : ends.points)
        if (point != PointIndex::None)
            points[point].use.add({airway.isHighAltitude, airway.isLowAltitude, true});
}

void addSegment(const Ends& ends, const Rest& rest, const SourceLine& line, const SourceContext& context) {
    if (rest.level != "1" && rest.level != "2")
        return context.sink.refuse(line, "neither a low (1) nor a high (2) airway: " + printable(rest.level));
    if (calcDistance2(ends.places[0], ends.places[1]) > LongestSegmentMetres)
        return context.sink.refuse(line, "the ends of the segment lie too far apart");
    auto airway = std::make_unique<AirwayElement>();
    const bool isBackwards = rest.direction == "B";
    airway->start = ends.places[isBackwards ? 1 : 0];
    airway->end = ends.places[isBackwards ? 0 : 1];
    airway->isOneDirection = isBackwards || rest.direction == "F";
    airway->name = cleanText(rest.name);
    airway->minimumEnroute = readLevel(rest.base);
    airway->maximumAuthorised = readLevel(rest.top);
    airway->isHighAltitude = rest.level == "2";
    airway->isLowAltitude = rest.level == "1";
    noteUse(ends, *airway, context.points);
    context.sink.add(std::move(airway), line);
}

void addPlaced(const XPlaneRows& rows, const SourceContext& context) {
    enum { Level = 6, Base, Top, Name, Count };
    const Values& values = rows.getValues();
    const auto ends = values.size() >= Count ? placedEnds(values, context.points) : std::nullopt;
    if (!ends)
        return context.sink.refuse(rows.getLine(),
                                   "no segment of two idents with their places, level, base, top and name");
    addSegment(*ends, {"N", values[Level], values[Base], values[Top], values[Name]}, rows.getLine(), context);
}

void addNamed(const XPlaneRows& rows, const SourceContext& context) {
    enum { FirstIdent, SecondIdent = 3, Direction = 6, Level, Base, Top, Name, Count };
    const Values& values = rows.getValues();
    if (values.size() < Count)
        return context.sink.refuse(rows.getLine(), "no segment of two ends, direction, level, base, top and name");
    const auto ends = namedEnds(values, context.points);
    if (!ends)
        return context.sink.refuse(rows.getLine(), "no fixes or navaids near each other are known as " +
                                                       printable(values[FirstIdent]) + " and " +
                                                       printable(values[SecondIdent]));
    addSegment(*ends, {values[Direction], values[Level], values[Base], values[Top], values[Name]}, rows.getLine(),
               context);
}

} // namespace

bool readAirwayFile(const std::string& path, const SourceContext& context) {
    XPlaneRows rows(path, context);
    const auto addRow = rows.getVersion() >= namedEndsVersion ? addNamed : addPlaced;
    while (rows.next())
        addRow(rows, context);
    return rows.isGood();
}

} // namespace skyvane
