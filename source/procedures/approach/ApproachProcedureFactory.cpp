#include "procedures/approach/ApproachProcedureFactory.h"

#include "chart/elements/AirportElement.h"
#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "procedures/approach/FinalApproach.h"
#include "procedures/approach/TrafficPatternApproach.h"
#include "procedures/framework/ProcedureKeys.h"

namespace skyvane {

namespace {

constexpr const char* RunwayKey = "RWY";
constexpr const char* SideKey = "otherSide";

const AirportElement* asAirport(const IChartElement* element) {
    const bool isAirport = element && element->getType() == IChartElement::AIRPORT;
    return isAirport ? static_cast<const AirportElement*>(element) : nullptr;
}

std::string parameter(const IndicatedProcedure& line, const char* key) {
    const auto found = line.parameters.find(key);
    return found == line.parameters.end() ? std::string() : found->second;
}

} // namespace

std::optional<AppRunway> runwayOfLine(const IndicatedProcedure& line, const IChartElement* element) {
    const AirportElement* airport = asAirport(element);
    if (!airport)
        return std::nullopt;
    return landingEnd(*airport, line.chartIndex, toInt(parameter(line, RunwayKey), -1),
                      parameter(line, SideKey) == "0");
}

bool ApproachProcedureFactory::areProceduresPossible(IChartElement* element) {
    return asAirport(element) != nullptr;
}

std::list<IndicatedProcedure> ApproachProcedureFactory::getPossibleProcedures(IChartElement* element, int id) {
    std::list<IndicatedProcedure> lines;
    const AirportElement* airport = asAirport(element);
    const size_t count = airport ? airport->runways.size() : 0;
    for (size_t index = 0; index < count; ++index)
        for (const size_t end : {size_t(0), size_t(1)})
            lines.push_back({id,
                             "RWY " + airport->runways[index].getEndLabel(end) + " Approach",
                             this,
                             {{RunwayKey, std::to_string(index)}, {SideKey, std::to_string(end)}}});
    return lines;
}

std::string ApproachProcedureFactory::choose(const IndicatedProcedure& line, const IChartElement* element) {
    const std::optional<AppRunway> runway = runwayOfLine(line, element);
    if (!runway)
        return "Error: Unknown runway.";
    const int elevation = asAirport(element)->elevationFeet;
    if (elevation == AirportElement::UnknownElevation)
        return "Error: Unknown elevation.";
    runway_ = *runway;
    values_.setElevation(elevation);
    selectProfile(0);
    return "";
}

void ApproachProcedureFactory::selectProfile(size_t index) {
    selected_ = index < profiles_.size() ? index : 0;
    profiles_[selected_]->setGUI(this);
}

std::unique_ptr<IProcedure> ApproachProcedureFactory::Create() {
    std::unique_ptr<IApproach> approach = profiles_[selected_]->create(this);
    if (approach)
        writeGeneralValues(approach.get());
    return approach;
}

std::unique_ptr<IProcedure> ApproachProcedureFactory::CreateFromIni(IChartElementSource* charts, IniFile* document,
                                                                    const std::string& section, unsigned index) {
    const std::string id = ProcedureKeys(*document, section, index).text("appId");
    std::unique_ptr<IApproach> approach;
    if (id == FinalApproach::AppId)
        approach = std::make_unique<FinalApproach>(getHost(), this);
    else if (id == TrafficPatternApproach::AppId)
        approach = std::make_unique<TrafficPatternApproach>(getHost(), this);
    if (approach && !approach->readFromIni(charts, document, section, index))
        approach.reset();
    return approach;
}

} // namespace skyvane
