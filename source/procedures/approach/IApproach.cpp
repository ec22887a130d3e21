#include "procedures/approach/IApproach.h"

#include "chart/elements/AirportElement.h"
#include "chart/store/IChartElementSource.h"
#include "core/ini/IniFile.h"
#include "procedures/framework/IProcedureHost.h"
#include "procedures/framework/ProcedureKeys.h"

#include <cmath>
#include <limits>

namespace skyvane {

namespace {

constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double HighestMetres = 100000.0;
constexpr const char* LostText = "Invalid Approach Procedure: Airport or runway no -> ";
constexpr const char* NoElevationText = "Error: Unknown elevation.";

} // namespace

IApproach::~IApproach() {
    host_->removeMessage(this);
    host_->removeMessage(&landing_);
    host_->removeMessage(&fafPosition_);
}

bool IApproach::setUp(const AppRunway& runway, const FinalApproachFix& fix) {
    IChartElementSource* charts = host_->getCharts();
    const AirportElement* airport = setLocation(charts, runway.airportIndex) ? findAirport(charts) : nullptr;
    if (!airport || !describe(*airport, runway))
        return false;
    const std::optional<ChartPosition> place = fix.place(landing_.threshold, charts);
    if (!place)
        return false;
    fafPosition_ = *place;
    fafAltitude_ = fix.altitude;
    return true;
}

const AirportElement* IApproach::findAirport(IChartElementSource* charts) const {
    if (!charts || getLocationType() != ProcedureLocation::ChartElement)
        return nullptr;
    const IChartElement* element = charts->getChartElement(getLocationChartIndex());
    const bool isAirport = element && element->getType() == IChartElement::AIRPORT;
    return isAirport ? static_cast<const AirportElement*>(element) : nullptr;
}

bool IApproach::describe(const AirportElement& airport, const AppRunway& runway) {
    const std::optional<LandingRunway> landing = describeLandingRunway(airport, runway.runwayIndex, runway.primary);
    if (!landing)
        return false;
    landing_ = *landing;
    runway_ = runway;
    name_ = "App: RWY " + landing_.label + " " + airport.name;
    return true;
}

bool IApproach::readFromIni(IChartElementSource* charts, IniFile* document, const std::string& section,
                            unsigned index) {
    const ProcedureKeys keys(*document, section, index);
    fafAltitude_ = keys.number("fafAlt", NoNumber, -HighestMetres, HighestMetres);
    if (!readCommonKeys(charts, document, section, index) || std::isnan(fafAltitude_) ||
        !keys.position("fafPos", fafPosition_) || !readOwnKeys(keys))
        return false;
    landing_.name = keys.text("threshold.name");
    landing_.label = landing_.name;
    if (!keys.position("threshold", landing_.threshold))
        landing_.threshold = getLocationPosition();
    name_ = "App: RWY " + landing_.name;
    findRunwayAgain(charts);
    return true;
}

void IApproach::findRunwayAgain(IChartElementSource* charts) {
    const AirportElement* airport = findAirport(charts);
    const std::optional<AppRunway> runway =
        airport ? findLandingEnd(*airport, getLocationChartIndex(), landing_.name, landing_.threshold) : std::nullopt;
    if (!runway || !describe(*airport, *runway))
        lose(LostText + landing_.label);
    else if (!landing_.isElevationKnown)
        lose(NoElevationText);
    else
        host_->removeMessage(this);
}

void IApproach::lose(const std::string& message) {
    runway_.reset();
    setCourseList({});
    loss_ = message;
    host_->setMessage(this, loss_, MESSAGE_RED, -1);
}

void IApproach::repeatMessages() {
    if (runway_)
        warn();
    else if (!loss_.empty())
        host_->setMessage(this, loss_, MESSAGE_RED, -1);
}

void IApproach::OnChartChanged(IChartElementSource* charts) {
    IProcedure::OnChartChanged(charts);
    findRunwayAgain(charts);
}

void IApproach::insertInIni(IChartElementSource* charts, IniFile* document, const std::string& section,
                            unsigned index) {
    IProcedure::insertInIni(charts, document, section, index);
    ProcedureKeys keys(*document, section, index);
    keys.setNumber("fafAlt", fafAltitude_);
    keys.setPosition("fafPos", fafPosition_);
    keys.setText("appId", getAppId());
    keys.setPosition("threshold", landing_.threshold);
    keys.setText("threshold.name", landing_.name);
    writeOwnKeys(keys);
}

void IApproach::warn() {
    const auto say = [this](void* owner, const std::string& text) {
        if (text.empty())
            host_->removeMessage(owner);
        else
            host_->setMessage(owner, text, MESSAGE_RED, -1);
    };
    say(this, thresholdWarning(landing_));
    say(&landing_, accuracyWarning(landing_));
    say(&fafPosition_, finalWarning(makePath()));
}

ApproachPath IApproach::makePath() const {
    ApproachPath path;
    path.threshold = landing_.threshold;
    path.thresholdElevation = landing_.thresholdElevation;
    path.farThreshold = landing_.farThreshold;
    path.course = runway_->course;
    path.faf = fafPosition_;
    path.fafAltitude = fafAltitude_;
    path.groundSpeed = values_.targetGroundSpeed;
    path.turnRate = values_.targetTurnRate;
    if (values_.checkAltitude)
        path.altitudeTolerance = values_.altitudeTolerance;
    return path;
}

void IApproach::calculateCourseList(ChartPosition position, double altitude, double course) {
    if (getLocationType() != ProcedureLocation::ChartElement || !runway_)
        return;
    warn();
    ApproachPath path = makePath();
    path.faf = limitFinalFix(path);
    setCourseList(calculatePath(path, {position, altitude, course}));
}

} // namespace skyvane
