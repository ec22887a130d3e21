#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chartmaker/openair/ArcShape.h"
#include "chartmaker/openair/OpenAirCoordinates.h"
#include "chartmaker/openair/OpenAirParser.h"
#include "chartmaker/report/CompileReport.h"
#include "chartmaker/text/SourceText.h"

// The records of OpenAirParser that draw the boundary.

namespace skyvane {
namespace {

constexpr size_t mostVertices = 50000;
constexpr double largestNauticalMiles = LargestArcMetres / MetresPerNauticalMile;

/// A comment may follow what draws.
std::string_view withoutComment(std::string_view value) {
    return trimmed(value.substr(0, value.find('*')));
}

/// A number and the comma behind it, off the front.
std::optional<double> takeNumber(std::string_view& value, double least, double greatest) {
    const size_t length = std::min(value.find(','), value.size());
    const auto number = readNumber(value.substr(0, length), least, greatest);
    value.remove_prefix(std::min(length + 1, value.size()));
    return number;
}

} // namespace

bool OpenAirParser::hasCentre() {
    if (!centre_)
        fail("an arc or circle without a centre (V X=...)");
    else if (draft_->airspace->vertices.size() > mostVertices)
        fail("has more than " + std::to_string(mostVertices) + " vertices");
    return draft_->fault.empty();
}

void OpenAirParser::takeVariable(std::string_view value) {
    value = withoutComment(value);
    const size_t equals = value.find('=');
    const std::string name = upperCase(trimmed(value.substr(0, std::min(equals, size_t{16}))));
    std::string_view set = equals == std::string_view::npos ? std::string_view() : trimmed(value.substr(equals + 1));
    if (name == "X") {
        centre_ = takeCoordinates(set);
        if (!centre_)
            fail("no coordinates: " + printable(value));
    } else if (name == "D" && (set == "+" || set == "-"))
        isClockwise_ = set == "+";
    else if (name != "W" && name != "Z") // the width of airways, and the zoom that shows the name
        fail("no variable that is known: " + printable(value));
}

void OpenAirParser::takePoint(std::string_view value) {
    std::string_view rest = withoutComment(value);
    const auto point = takeCoordinates(rest);
    if (!point || !trimmed(rest).empty())
        return fail("no coordinates: " + printable(value));
    if (draft_->airspace->vertices.size() > mostVertices)
        return fail("has more than " + std::to_string(mostVertices) + " vertices");
    draft_->airspace->vertices.push_back(*point);
}

void OpenAirParser::takeArcByAngles(std::string_view value) {
    std::string_view rest = withoutComment(value);
    const auto radius = takeNumber(rest, 1e-6, largestNauticalMiles);
    const auto from = takeNumber(rest, -360.0, 720.0), to = takeNumber(rest, -360.0, 720.0);
    if (!radius || !from || !to)
        return fail("no arc of radius and two bearings: " + printable(value));
    if (hasCentre())
        appendArc(*centre_, *radius * MetresPerNauticalMile, {*from, *to, isClockwise_}, draft_->airspace->vertices);
}

void OpenAirParser::takeArcByPoints(std::string_view value) {
    std::string_view rest = withoutComment(value);
    const auto from = takeCoordinates(rest);
    rest = trimmed(rest);
    if (!rest.empty() && rest[0] == ',')
        rest.remove_prefix(1);
    const auto to = takeCoordinates(rest);
    if (!from || !to || !trimmed(rest).empty())
        return fail("no arc between two points: " + printable(value));
    if (!hasCentre())
        return;
    if (calcDistance2(*centre_, *from) > LargestArcMetres || calcDistance2(*centre_, *to) > LargestArcMetres)
        return fail("an arc too far from its centre: " + printable(value));
    appendArcBetween(*centre_, *from, *to, isClockwise_, draft_->airspace->vertices);
}

void OpenAirParser::takeCircle(std::string_view value) {
    const auto radius = readNumber(withoutComment(value), 1e-6, largestNauticalMiles);
    if (!radius)
        return fail("no radius of a circle: " + printable(value));
    if (hasCentre())
        appendCircle(*centre_, *radius * MetresPerNauticalMile, draft_->airspace->vertices);
}

void OpenAirParser::takeCorridor(std::string_view) {
    fail("is the corridor of an airway (DY): airways come from their own files");
}

} // namespace skyvane
