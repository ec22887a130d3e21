#include "chartmaker/openair/OpenAirParser.h"

#include "chartmaker/openair/AirspaceClass.h"
#include "chartmaker/report/CompileReport.h"
#include "chartmaker/text/LineReader.h"
#include "chartmaker/text/SourceText.h"
#include "core/IProgressSink.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr size_t longestClass = 20;
constexpr long linesPerStep = 256;

/// Vertices nearer than this to each other are one.
constexpr double sameVertexDegrees = 1e-7;

bool isSame(const ChartPosition& a, const ChartPosition& b) {
    return std::abs(a.longitude - b.longitude) < sameVertexDegrees &&
           std::abs(a.latitude - b.latitude) < sameVertexDegrees;
}

void removeRepeatedVertices(std::vector<ChartPosition>& vertices) {
    vertices.erase(std::unique(vertices.begin(), vertices.end(), isSame), vertices.end());
    while (vertices.size() > 1 && isSame(vertices.front(), vertices.back()))
        vertices.pop_back();
}

std::string levelRemark(const char* what, const std::optional<AirspaceLimit>& limit) {
    const bool isLevel = limit && limit->kind == AirspaceLimit::FlightLevel;
    return isLevel ? what + (" FL" + std::to_string(limit->feet / 100)) : std::string();
}

} // namespace

const OpenAirParser::Record OpenAirParser::records[] = {
    {"AC", &OpenAirParser::takeClass},       {"AN", &OpenAirParser::takeName},
    {"AY", &OpenAirParser::takeType},        {"AI", &OpenAirParser::takeId},
    {"AF", &OpenAirParser::takeFrequency},   {"AG", &OpenAirParser::takeStation},
    {"AX", &OpenAirParser::takeTransponder}, {"AA", &OpenAirParser::takeTimes},
    {"AL", &OpenAirParser::takeBottom},      {"AH", &OpenAirParser::takeTop},
    {"AT", &OpenAirParser::ignore},          {"V", &OpenAirParser::takeVariable},
    {"DP", &OpenAirParser::takePoint},       {"DA", &OpenAirParser::takeArcByAngles},
    {"DB", &OpenAirParser::takeArcByPoints}, {"DC", &OpenAirParser::takeCircle},
    {"DY", &OpenAirParser::takeCorridor},    {"TO", &OpenAirParser::takeTerrain},
    {"TC", &OpenAirParser::takeTerrain},     {"SP", &OpenAirParser::ignore},
    {"SB", &OpenAirParser::ignore},          {nullptr, nullptr},
};

void OpenAirParser::take(std::string_view line, const SourceLine& where) {
    where_ = where;
    line = trimmed(line);
    if (line.empty() || line[0] == '*')
        return;
    const size_t end = std::min(line.find_first_of(" \t"), line.size());
    const std::string name = upperCase(line.substr(0, std::min(end, size_t{3})));
    const std::string_view value = trimmed(line.substr(end));
    const Record* record = records;
    while (record->name && name != record->name)
        ++record;
    if (!record->name)
        return sink_.refuse(where, "no record of OpenAir: " + printable(line));
    if (record->take == &OpenAirParser::takeClass || record->take == &OpenAirParser::takeTerrain)
        return (this->*record->take)(value);
    if (!draft_ && !isInTerrain_)
        return sink_.refuse(where, "belongs to no airspace: " + printable(line));
    if (draft_)
        (this->*record->take)(value);
}

void OpenAirParser::takeClass(std::string_view value) {
    finish();
    isInTerrain_ = false;
    isClockwise_ = true;
    draft_ = std::make_unique<Draft>();
    draft_->fileName = where_.file;
    draft_->line = where_.number;
    draft_->icaoClass = upperCase(cleanText(value, longestClass));
}

void OpenAirParser::takeTerrain(std::string_view) {
    finish();
    isInTerrain_ = true;
    sink_.refuse(where_, "terrain isn't taken from airspace files");
}

void OpenAirParser::takeName(std::string_view value) {
    draft_->airspace->name = cleanText(value);
}

void OpenAirParser::takeType(std::string_view value) {
    draft_->type = upperCase(cleanText(value, longestClass));
}

void OpenAirParser::takeId(std::string_view value) {
    addRemark(draft_->airspace->remarks, "Id: " + cleanText(value));
}

void OpenAirParser::takeFrequency(std::string_view value) {
    draft_->frequency = cleanText(value);
}

void OpenAirParser::takeStation(std::string_view value) {
    draft_->station = cleanText(value);
}

void OpenAirParser::takeTransponder(std::string_view value) {
    addRemark(draft_->airspace->remarks, "Transponder: " + cleanText(value));
}

void OpenAirParser::takeTimes(std::string_view value) {
    addRemark(draft_->airspace->remarks, "Active: " + cleanText(value));
}

void OpenAirParser::takeBottom(std::string_view value) {
    draft_->bottomText = cleanText(value);
}

void OpenAirParser::takeTop(std::string_view value) {
    draft_->topText = cleanText(value);
}

void OpenAirParser::fail(const std::string& reason) {
    if (!draft_->fault.empty())
        return;
    draft_->fault = reason;
    draft_->faultLine = where_.number;
}

void OpenAirParser::applyLimits() {
    AirspaceElement& airspace = *draft_->airspace;
    const SourceLine begin{draft_->fileName, draft_->line};
    const auto bottom = parseAirspaceLimit(draft_->bottomText), top = parseAirspaceLimit(draft_->topText);
    const bool isBottomKnown = bottom && bottom->kind != AirspaceLimit::Unlimited;
    const bool isTopKnown = top && top->kind != AirspaceLimit::Surface;
    if (!isBottomKnown)
        sink_.warn(begin, "the floor \"" + printable(draft_->bottomText) + "\" isn't understood: taken as the surface");
    if (!isTopKnown)
        sink_.warn(begin, "the ceiling \"" + printable(draft_->topText) + "\" isn't understood: taken as unlimited");
    const bool isOnSurface = !isBottomKnown || bottom->kind == AirspaceLimit::Surface;
    airspace.bottomFeet = isOnSurface ? AirspaceElement::Unlimited : bottom->feet;
    airspace.isBottomMsl = !isOnSurface && bottom->isMsl;
    const bool isUnlimited = !isTopKnown || top->kind == AirspaceLimit::Unlimited;
    airspace.topFeet = isUnlimited ? AirspaceElement::Unlimited : top->feet;
    airspace.isTopMsl = isUnlimited || top->isMsl;
    if (!isOnSurface && !isUnlimited && airspace.isTopMsl == airspace.isBottomMsl &&
        airspace.bottomFeet > airspace.topFeet)
        sink_.warn(begin, "the floor lies above the ceiling");
    addRemark(airspace.remarks, isBottomKnown ? levelRemark("Floor:", bottom) : "Floor: " + draft_->bottomText);
    addRemark(airspace.remarks, isTopKnown ? levelRemark("Ceiling:", top) : "Ceiling: " + draft_->topText);
}

void OpenAirParser::completeRemarks() {
    std::string& remarks = draft_->airspace->remarks;
    if (!draft_->frequency.empty())
        addRemark(remarks, draft_->frequency + (draft_->station.empty() ? "" : " " + draft_->station));
    if (!draft_->type.empty() && draft_->type != draft_->airspace->airspaceClass)
        addRemark(remarks, "Type: " + draft_->type);
}

void OpenAirParser::finish() {
    if (!draft_)
        return;
    AirspaceElement& airspace = *draft_->airspace;
    const SourceLine begin{draft_->fileName, draft_->line};
    removeRepeatedVertices(airspace.vertices);
    if (draft_->fault.empty() && airspace.vertices.size() < 3) {
        draft_->fault = "has fewer than three vertices";
        draft_->faultLine = draft_->line;
    }
    if (!draft_->fault.empty()) {
        sink_.refuse({draft_->fileName, draft_->faultLine}, "\"" + airspace.name + "\": " + draft_->fault);
    } else {
        airspace.airspaceClass = airspaceClassOf(draft_->icaoClass, draft_->type);
        applyLimits();
        completeRemarks();
        airspace.recalculateBoundingBox();
        sink_.add(std::move(draft_->airspace), begin);
    }
    draft_.reset();
}

bool readOpenAir(const std::string& path, const SourceContext& context) {
    LineReader lines(path);
    OpenAirParser parser(context.sink);
    for (std::string_view line; lines.next(line);) {
        parser.take(line, {path, lines.getLineNumber()});
        if (lines.getLineNumber() % linesPerStep == 0)
            context.progress.setProgress(lines.getShare());
    }
    if (lines.isUnended())
        context.sink.warn({path, lines.getLineNumber()}, "the file ends inside of this line: it may be cut");
    parser.finish();
    if (!lines.getError().empty())
        context.sink.refuse({path}, lines.getError());
    return lines.getError().empty();
}

} // namespace skyvane
