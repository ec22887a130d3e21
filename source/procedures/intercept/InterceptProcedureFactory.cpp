#include "procedures/intercept/InterceptProcedureFactory.h"

#include "chart/areas/AreaLeaf.h"
#include "chart/areas/AreaQueries.h"
#include "chart/elements/AirwayElement.h"
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"
#include "chart/store/IChartElementSource.h"
#include "core/log/Logger.h"
#include "core/text/Numbers.h"
#include "procedures/framework/IProcedureHost.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double ConnectedMetres = 100.0;
constexpr double SearchHalfHeightDegrees = 0.3331086817884572; // 20 nautical miles
constexpr double SearchWidthMetres = 74080.0;
constexpr double PolarHalfWidthDegrees = 190.85733515763965;
constexpr unsigned char TypeBits = 0x3f;

const AirwayElement* findAirway(IChartElementSource* charts, int id) {
    const IChartElement* element = charts ? charts->getChartElement(id) : nullptr;
    return element && element->getType() == IChartElement::AIRWAY ? static_cast<const AirwayElement*>(element)
                                                                  : nullptr;
}

bool isConnected(const AirwayElement& airway, const ChartPosition& position) {
    return calcDistance2(airway.start, position) < ConnectedMetres ||
           calcDistance2(airway.end, position) < ConnectedMetres;
}

double searchHalfWidth(double latitude) {
    if (std::fabs(latitude) > PolarLatitudeLimit)
        return PolarHalfWidthDegrees;
    return SearchWidthMetres / longitudeScale(latitude) / MetresPerDegree * 0.5;
}

/// Away from the position.
double bearingFrom(const AirwayElement& airway, const ChartPosition& position) {
    const bool startsHere = calcDistance2(airway.start, position) < ConnectedMetres;
    return startsHere ? calcBearing2(airway.start, airway.end) : calcBearing2(airway.end, airway.start);
}

} // namespace

void appendAirwaysInVicinity(IChartElementSource* charts, int area, ChartPosition position, std::list<int>& airways) {
    std::list<int> leafs;
    appendLeafes(*charts, area, leafs);
    for (const int index : leafs) {
        const AreaLeaf* leaf = charts->getArea(index)->asLeaf();
        for (size_t i = 0; leaf->isSane() && i < leaf->getElements().size(); ++i) {
            if ((leaf->getStaticBytes()[i * AreaLeaf::BytesPerElement] & TypeBits) != IChartElement::AIRWAY)
                continue;
            const int id = leaf->getElements()[i];
            const AirwayElement* airway = findAirway(charts, id);
            if (!airway || !isConnected(*airway, position) ||
                std::find(airways.begin(), airways.end(), id) != airways.end())
                continue;
            logText("Connected airway " + airway->name + " found.\n");
            airways.push_back(id);
        }
    }
}

bool InterceptProcedureFactory::areProceduresPossible(IChartElement* element) {
    return element && (element->getType() == IChartElement::WAYPOINT || element->getType() == IChartElement::NDB ||
                       element->getType() == IChartElement::VOR);
}

void InterceptProcedureFactory::prepare(const IndicatedProcedure& procedure, IChartElement* element) {
    chartIndex_ = procedure.chartIndex;
    line_ = InterceptProcedure::Line();
    int altitudeFeet = 0;
    if (element)
        position_ = element->getPosition();
    else
        fillAltAndPos(position_.longitude, position_.latitude, altitudeFeet);
    setGeneralStandardValues();
}

std::map<std::string, int> InterceptProcedureFactory::findConnectedAirways() {
    std::map<std::string, int> texts;
    IChartElementSource* charts = getHost()->getCharts();
    if (!charts)
        return texts;
    const double halfWidth = std::min(searchHalfWidth(position_.latitude), 179.9);
    const ChartPosition nw(Angle0to360(position_.longitude - halfWidth),
                           std::min(position_.latitude + SearchHalfHeightDegrees, 90.0));
    const ChartPosition se(Angle0to360(position_.longitude + halfWidth),
                           std::max(position_.latitude - SearchHalfHeightDegrees, -90.0));
    std::list<int> airways;
    for (const int area : charts->getBestFittingAreaList(nw, se, 1.0))
        appendAirwaysInVicinity(charts, area, position_, airways);
    for (const int id : airways)
        if (const AirwayElement* airway = findAirway(charts, id))
            texts[airway->name + " (Course " + toText(roundHalfAway(bearingFrom(*airway, position_))) + ")"] = id;
    return texts;
}

InterceptProcedureFactory::Answer InterceptProcedureFactory::useRadial(double radial, double offset, bool to) {
    if (!(offset >= InterceptProcedure::LeastOffset))
        return Answer::OffsetTooSmall;
    line_ = {Angle0to360(radial + 180.0), offset, to};
    return Answer::Good;
}

InterceptProcedureFactory::Answer InterceptProcedureFactory::useAirway(int id, double offset, bool to) {
    const AirwayElement* airway = findAirway(getHost()->getCharts(), id);
    if (!airway)
        return Answer::NoAirway;
    if (!(offset >= InterceptProcedure::LeastOffset))
        return Answer::OffsetTooSmall;
    const bool endsHere = calcDistance2(airway->end, position_) <= calcDistance2(airway->start, position_);
    line_ = {endsHere ? calcBearing2(airway->start, airway->end) : calcBearing2(airway->end, airway->start), offset,
             to};
    return Answer::Good;
}

bool InterceptProcedureFactory::isMetBeyond(const CourseList& path) const {
    if (!line_.to || path.empty())
        return false;
    const double back = calcBearing2(path.back().position, position_) - line_.courseToElement;
    return std::fabs(Angle180(back)) > 90.0;
}

std::unique_ptr<IProcedure> InterceptProcedureFactory::Create() {
    auto intercept = std::make_unique<InterceptProcedure>(getHost()->getCharts(), chartIndex_, line_, this);
    writeGeneralValues(intercept.get());
    return intercept;
}

std::unique_ptr<IProcedure> InterceptProcedureFactory::CreateFromIni(IChartElementSource* charts, IniFile* document,
                                                                     const std::string& section, unsigned index) {
    return InterceptProcedure::createFromIni(charts, document, section, index, this);
}

} // namespace skyvane
