#include "procedures/ProcedureManager.h"

#include "chart/elements/AirportElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/store/IChart.h"
#include "core/Context.h"
#include "core/files/SafeFile.h"
#include "core/log/Logger.h"
#include "core/text/Numbers.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "procedures/dialogs/ChooseProcedureScreen.h"
#include "procedures/framework/FlightReadings.h"
#include "sensors/SensorManager.h"
#include "terrain/TerrainManager.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {
namespace {

constexpr unsigned UpdateMilliseconds = 500;
constexpr int WarningMilliseconds = 1000;
constexpr int LossMilliseconds = 30000;
constexpr int WarnedFeet = 599;
constexpr const char* PlansFile = "data/fpl.ini";

int largestPowerOfTwoUpTo(unsigned limit) {
    int power = 1;
    while (static_cast<unsigned>(power) * 2 <= limit)
        power *= 2;
    return power;
}

} // namespace

ProcedureManager::ProcedureManager(Context* context)
    : context_(context), saved_(context->getPath(PlansFile)),
      sideViewPoints_(largestPowerOfTwoUpTo(context->getIrrlichtDevice()->getVideoDriver()->getScreenSize().Width)) {
    highway_.setShape(
        readGateShape(context->getPanelManager()->getMeshHWMapped(context->getPath("media/rect.b3d").c_str())));
    if (!highway_.start())
        logText("No thread for the highway in the sky: there will be none.\n");
}

ProcedureManager::~ProcedureManager() = default;

void ProcedureManager::addProcedureFactory(std::unique_ptr<IProcedureFactory> factory) {
    factories_.push_back(std::move(factory));
}

IProcedureFactory* ProcedureManager::getProcedureFactory(int index) const {
    return index >= 0 && index < getProcedureFactoryCount() ? factories_[static_cast<size_t>(index)].get() : nullptr;
}

IProcedureFactory* ProcedureManager::findProcedureFactorybyType(IProcedure::Type type) const {
    const auto found = std::find_if(factories_.begin(), factories_.end(),
                                    [type](const auto& factory) { return factory->getType() == type; });
    return found == factories_.end() ? nullptr : found->get();
}

void ProcedureManager::addProcedure(std::unique_ptr<IProcedure> procedure) {
    plan_.add(std::move(procedure));
    notifyChanged();
}

void ProcedureManager::addProcedureAfterCurrent(std::unique_ptr<IProcedure> procedure) {
    plan_.addAfterCurrent(std::move(procedure));
    notifyChanged();
}

void ProcedureManager::addProcedureBeforeCurrent(std::unique_ptr<IProcedure> procedure) {
    plan_.addBeforeCurrent(std::move(procedure));
    notifyChanged();
}

void ProcedureManager::replaceCurrentProcedure(std::unique_ptr<IProcedure> procedure) {
    plan_.replaceCurrent(std::move(procedure));
    notifyChanged();
}

void ProcedureManager::deleteCurrentProcedure() {
    plan_.deleteCurrent();
    notifyChanged();
}

void ProcedureManager::deleteAllProcedures() {
    plan_.deleteAll();
    notifyChanged();
}

void ProcedureManager::setCurrentProcedure(int index) {
    plan_.setCurrent(index);
    notifyChanged();
}

void ProcedureManager::nextProcedure() {
    if (plan_.next())
        notifyChanged();
}

void ProcedureManager::previousProcedure() {
    if (plan_.previous())
        notifyChanged();
}

void ProcedureManager::moveCurrentProcedureForwards() {
    if (plan_.moveCurrentForwards())
        notifyChanged();
}

void ProcedureManager::moveCurrentProcedureBackwards() {
    if (plan_.moveCurrentBackwards())
        notifyChanged();
}

bool ProcedureManager::changeProcedure(const IProcedure* procedure, const std::function<void()>& change) {
    const int index = plan_.find(procedure);
    if (index < 0)
        return false;
    const IProcedure* flown = plan_.getCurrent();
    plan_.setCurrent(index);
    change();
    if (flown != procedure)
        plan_.setCurrent(plan_.find(flown));
    notifyChanged();
    return true;
}

void ProcedureManager::repeatMessages() {
    for (const auto& procedure : plan_.getProcedures())
        procedure->repeatMessages();
}

/// What was drawn of the former plan isn't right any more: an empty plan takes the highway and the profile away.
void ProcedureManager::notifyChanged() {
    pathChanged_ = true;
    if (plan_.isEmpty())
        requestProfile();
    context_->getPanelManager()->OnProcedureChanged();
}

bool ProcedureManager::calculateCourseList() {
    if (plan_.isEmpty())
        return false;
    PanelManager* panels = context_->getPanelManager();
    panels->OnProcedureNodesDelete();
    const FlightReadings readings = readFlight(*context_->getSensorManager());
    awaitsPosition_ = !readings.isPlaced();
    if (readings.isPlaced())
        plan_.calculateCourseLists(*readings.position, *readings.altitude, readings.heading.value_or(0.0));
    notifyChanged();
    Update(true);
    requestProfile();
    return readings.isPlaced();
}

void ProcedureManager::Update(bool force) {
    const FlightReadings readings = readFlight(*context_->getSensorManager());
    if (awaitsPosition_ && readings.isPlaced())
        calculateCourseList();
    if (!plan_.isEmpty()) {
        constexpr double unknown = std::numeric_limits<double>::quiet_NaN();
        plan_.updatePosRelated(readings.isPlaced() ? readings.state() : AircraftMotion{{}, unknown, 0.0, 0.0});
        if (readings.altitude)
            warnOfDestination(*readings.altitude);
    }
    updateHighway(readings, force);
    if (!plan_.advanceWhenFinished())
        return;
    notifyChanged();
    calculateCourseList();
}

/// The message stays for a second, and is given again when the figure changes or half of that has passed.
void ProcedureManager::warnOfDestination(double altitudeMetres) {
    const IProcedure* current = plan_.getCurrent();
    IChartElementSource* charts = context_->getCharts();
    if (!charts || current->getLocationType() != ProcedureLocation::ChartElement)
        return;
    const IChartElement* element = charts->getChartElement(current->getLocationChartIndex());
    if (!element || element->getType() != IChartElement::AIRPORT)
        return;
    const int elevation = static_cast<const AirportElement*>(element)->elevationFeet;
    const int above = roundHalfAway(altitudeMetres / MetresPerFoot - elevation);
    if (elevation == AirportElement::UnknownElevation || std::abs(above) > WarnedFeet)
        return;
    const int shown = above / 10 * 10;
    const unsigned now = MilliSecs();
    if (warnedFeet_ == shown && TimeDiff(now, warnedMilliseconds_) < UpdateMilliseconds)
        return;
    warnedFeet_ = shown;
    warnedMilliseconds_ = now;
    context_->setMessage(this, "Altitude Warning:\n" + toText(shown) + " ft above dest.", MESSAGE_RED,
                         WarningMilliseconds);
}

void ProcedureManager::updateHighway(const FlightReadings& readings, bool force) {
    const unsigned now = MilliSecs();
    if (!force && TimeDiff(now, lastUpdateMilliseconds_) < UpdateMilliseconds)
        return;
    lastUpdateMilliseconds_ = now;
    const IProcedure* current = plan_.getCurrent();
    const ProcedureValues& values = current->getValues();
    if (force || pathChanged_)
        highway_.setPath(current->getCourseList());
    pathChanged_ = false;
    HighwayBuilder::Aircraft aircraft;
    aircraft.available = readings.isPlaced() && !plan_.isEmpty();
    if (readings.isPlaced()) {
        aircraft.position = *readings.position;
        aircraft.altitudeMetres = *readings.altitude;
    }
    aircraft.size.spacingMetres = highwaySpacing_;
    if (values.checkCourse)
        aircraft.size.widthMetres = 2.0 * values.positionTolerance;
    if (values.checkAltitude)
        aircraft.size.heightMetres = 2.0 * values.altitudeTolerance;
    if (!highway_.exchange(aircraft, highwayMesh_))
        return;
    meshes_.fill(highwayMesh_);
    context_->getPanelManager()->OnProcedureNodesDelete();
    meshes_.swap();
    context_->getPanelManager()->OnProcedureMeshExchanged();
}

void ProcedureManager::requestProfile() {
    profile_.reset();
    TerrainManager* terrain = context_->getPanelManager()->getTerrainManager();
    if (!terrain)
        return;
    if (auto call = createPointCallFromProcedures(plan_, this, sideViewPoints_))
        terrain->requestHeightPoints(std::move(call));
    else
        terrain->deleteHeightPointRequests(this);
}

void ProcedureManager::OnHeightPoints(PointCall& call) {
    profile_ = std::make_unique<RouteProfile>(static_cast<RouteProfile&>(call));
    if (!sideTexture_) {
        irr::video::IVideoDriver* driver = context_->getIrrlichtDevice()->getVideoDriver();
        const bool former = driver->getTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS);
        driver->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, false);
        sideTexture_ = driver->addTexture(irr::core::dimension2du(static_cast<irr::u32>(sideViewPoints_), SideViewRows),
                                          "sideTexture_procman", irr::video::ECF_A8R8G8B8);
        driver->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, former);
    }
    if (void* pixels = sideTexture_ ? sideTexture_->lock(irr::video::ETLM_WRITE_ONLY) : nullptr) {
        paintSideProfile(*profile_, SideViewRows, static_cast<uint32_t*>(pixels));
        sideTexture_->unlock();
    }
}

bool ProcedureManager::newProcedure(const IChartElement* element, int id, bool keepsProcedure) {
    std::unique_ptr<IProcedure> made;
    {
        ChooseProcedureScreen screen(*context_, element, id, keepsProcedure);
        if (!screen.run())
            return false;
        made = screen.takeProcedure();
    }
    // Messages are on again: what the new path warns of is heard.
    if (made) {
        addProcedureAfterCurrent(std::move(made));
        calculateCourseList();
    }
    logText("New procedure: " + getCurrentProcedure()->getName() + "\n");
    return true;
}

void ProcedureManager::insertFlightPlan(IniFile& document, const std::string& name) {
    writePlan(plan_, document, name, context_->getCharts());
}

bool ProcedureManager::retrieveFlightPlan(const std::string& name) {
    if (!saved_.isSectionAvailable(name))
        return false;
    PlanReading reading = readPlan(saved_, name, factories_, context_->getCharts());
    losses_ = std::move(reading.losses);
    tellLosses();
    if (reading.procedures.empty() && !losses_.empty())
        return false;
    plan_.replaceAll(std::move(reading.procedures));
    notifyChanged();
    calculateCourseList();
    return true;
}

void ProcedureManager::startWithFlightPlan(const std::string& name) {
    if (retrieveFlightPlan(name) || !losses_.empty())
        return;
    context_->setMessage(&saved_, "FLIGHT PLAN:\nthere is no saved plan \"" + name + "\"", MESSAGE_YELLOW,
                         LossMilliseconds);
}

void ProcedureManager::tellLosses() {
    if (losses_.empty())
        return;
    for (const std::string& loss : losses_)
        logText("Flight plan: a procedure \"" + loss + "\" can't be flown.\n");
    const int count = static_cast<int>(losses_.size());
    context_->setMessage(&saved_,
                         count == 1 ? "FLIGHT PLAN INCOMPLETE:\na procedure can't be flown"
                                    : "FLIGHT PLAN INCOMPLETE:\n" + toText(count) + " procedures can't be flown",
                         MESSAGE_YELLOW, LossMilliseconds);
}

bool ProcedureManager::saveFlightPlans() {
    return saveFileSafely(context_->getPath(PlansFile), saved_.toString()) == 0;
}

std::vector<AirportRecord> ProcedureManager::findAirportsInCorridor(double width, const AirportKinds& kinds) {
    IChartElementSource* charts = context_->getCharts();
    return charts ? skyvane::findAirportsInCorridor(plan_, *charts, width, kinds) : std::vector<AirportRecord>();
}

void ProcedureManager::OnChartChanged() {
    plan_.OnChartChanged(context_->getCharts());
    requestProfile();
}

} // namespace skyvane
