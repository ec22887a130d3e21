#include "flightfeed/flight/PlanRoute.h"

#include "chart/elements/ElementFactory.h"
#include "chart/store/ChartStore.h"
#include "core/ini/IniFile.h"
#include "core/ini/IniIterator.h"
#include "flightfeed/flight/Units.h"
#include "procedures/aircraft/profiles/Aircraft.h"
#include "procedures/approach/ApproachProcedureFactory.h"
#include "procedures/direct/DirectProcedureFactory.h"
#include "procedures/framework/IProcedureHost.h"
#include "procedures/holding/HoldingProcedureFactory.h"
#include "procedures/intercept/InterceptProcedureFactory.h"
#include "procedures/plan/SavedPlans.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr size_t ElementsKept = 1000;

/// What procedures need of a program that has charts, and nobody to talk to.
class QuietProgram : public IProcedureHost {
public:
    explicit QuietProgram(IChartElementSource* charts) : charts_(charts) {}
    IChartElementSource* getCharts() override { return charts_; }
    SensorManager* getSensorManager() override { return nullptr; }
    Aircraft& getCurrentAircraft() override { return aircraft_; }
    void setMessage(void*, const std::string&, MESSAGECOLOR, int) override {}
    void removeMessage(void*) override {}

private:
    IChartElementSource* charts_;
    Aircraft aircraft_;
};

ProcedureFactories makeFactories(IProcedureHost* host) {
    ProcedureFactories factories;
    factories.push_back(std::make_unique<DirectProcedureFactory>(host));
    factories.push_back(std::make_unique<HoldingProcedureFactory>(host));
    factories.push_back(std::make_unique<ApproachProcedureFactory>(host));
    factories.push_back(std::make_unique<InterceptProcedureFactory>(host));
    return factories;
}

/// The first section with a name.
std::string firstPlan(IniFile& document) {
    const std::unique_ptr<IniIterator> sections(document.newIterator());
    while (sections->isSectionAvail() && sections->currentSection().empty())
        sections->nextSection();
    return sections->isSectionAvail() ? sections->currentSection() : "";
}

} // namespace

struct PlanRoute::Plan {
    explicit Plan(const std::string& chartFolder)
        : charts(elements, {chartFolder + "/", ""}, ElementsKept), host(&charts), factories(makeFactories(&host)) {}

    ElementFactories elements = makeElementFactories();
    ChartStore charts;
    QuietProgram host;
    ProcedureFactories factories;
    FlightPlan procedures;
};

PlanRoute::PlanRoute(std::unique_ptr<Plan> plan) : plan_(std::move(plan)) {}

PlanRoute::~PlanRoute() = default;

std::unique_ptr<PlanRoute> PlanRoute::open(const std::string& planFile, const std::string& chartFolder,
                                           std::string& error) {
    IniFile document(planFile);
    const std::string name = firstPlan(document);
    if (name.empty()) {
        error = planFile + ": there is no flight plan";
        return nullptr;
    }
    auto plan = std::make_unique<Plan>(chartFolder);
    plan->charts.loadSets("");
    plan->charts.buildIndex(nullptr, nullptr);
    PlanReading reading = readPlan(document, name, plan->factories, &plan->charts);
    if (!reading.losses.empty() || reading.procedures.empty()) {
        error = planFile + ": \"" + name + "\" can't be flown" +
                (reading.losses.empty() ? "" : ": " + reading.losses.front());
        return nullptr;
    }
    plan->procedures.replaceAll(std::move(reading.procedures));
    return std::unique_ptr<PlanRoute>(new PlanRoute(std::move(plan)));
}

void PlanRoute::begin(const FlightState& state) {
    plan_->procedures.setCurrent(0);
    layPath(state);
}

void PlanRoute::join(const FlightState& state) {
    constexpr double anywhereMetres = 30000.0;
    path_.moveTo({state.latitudeDegrees, state.longitudeDegrees}, anywhereMetres);
}

void PlanRoute::layPath(const FlightState& state) {
    FlightPlan& plan = plan_->procedures;
    plan.calculateCourseLists({state.longitudeDegrees, state.latitudeDegrees}, state.altitudeMetres,
                              state.headingDegrees);
    path_ = PlanPath(plan);
}

PlanRoute::Aim PlanRoute::follow(const FlightState& state) {
    FlightPlan& plan = plan_->procedures;
    plan.updatePosRelated({{state.longitudeDegrees, state.latitudeDegrees},
                           state.altitudeMetres,
                           state.groundSpeedKnots,
                           state.headingDegrees});
    if (plan.advanceWhenFinished())
        layPath(state);
    Aim aim;
    aim.groundSpeedKnots = plan.getCurrent()->getValues().targetGroundSpeed;
    if (path_.isEmpty())
        return aim;
    // The circle that is tangent to the track and meets the path a few seconds ahead.
    constexpr double aheadSeconds = 4.5, climbSeconds = 1.5, slowest = 20.0, nearMetres = 600.0;
    const GroundPoint here{state.latitudeDegrees, state.longitudeDegrees};
    const double speed = std::max(slowest, state.groundSpeedKnots * METRES_PER_SECOND_PER_KNOT);
    path_.moveTo(here, nearMetres);
    const GroundOffset way = offsetBetween(here, path_.pointAt(path_.along() + aheadSeconds * speed));
    const double distance = std::max(1.0, std::hypot(way.northMetres, way.eastMetres));
    const double off = wrapRadians(std::atan2(way.eastMetres, way.northMetres) - toRadians(state.groundTrackDegrees));
    aim.turnRadiansPerSecond = 2.0 * speed * std::sin(std::clamp(off, -0.5 * PI, 0.5 * PI)) / distance;
    aim.altitudeMetres = path_.altitudeAt(path_.along());
    aim.climbMetresPerSecond = speed * path_.slopeAt(path_.along() + climbSeconds * speed);
    aim.metresLeft = path_.metresLeft();
    return aim;
}

} // namespace skyvane
