#include "chart/geodesy/ChartPosition.h"
#include "core/ini/IniFile.h"
#include "procedures/direct/DirectProcedure.h"
#include "procedures/holding/HoldingProcedure.h"
#include "procedures/intercept/InterceptProcedure.h"
#include "procedures/plan/FlightPlan.h"
#include "tools/flightfeed/FlownRows.h"

#include <cmath>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

// A pilot's own sums, on a plane around a place: 1 degree of latitude is 60 miles, one of longitude less by the cosine.
constexpr double MilesPerDegree = 60.04;
const ChartPosition Start(-28.5, 42.0), First(-28.5, 42.12), Fix(-28.4, 42.3);
constexpr double Radial = 190.0, Inbound = 10.0; // the line onto the fix
constexpr double Knots = 105.0, Rate = 3.0;

struct Place {
    double east, north;
};
Place onPlane(const ChartPosition& place) {
    return {(place.longitude - Fix.longitude) * MilesPerDegree * std::cos(42.15 * M_PI / 180.0),
            (place.latitude - Fix.latitude) * MilesPerDegree};
}
/// Miles to the right of a course through a place.
double beside(const Place& origin, double course, const Place& place) {
    const double angle = course * M_PI / 180.0;
    return (place.east - origin.east) * std::cos(angle) - (place.north - origin.north) * std::sin(angle);
}

template <class Procedure>
void addTo(FlightPlan& plan, std::unique_ptr<Procedure> procedure) {
    ProcedureValues values;
    values.targetGroundSpeed = Knots;
    values.targetTurnRate = Rate;
    values.checkCourse = true;
    values.positionTolerance = 150.0;
    procedure->setValues(values);
    plan.add(std::move(procedure));
}

std::unique_ptr<InterceptProcedure> interception() {
    IniFile saved;
    const std::pair<const char*, double> keys[] = {{"locpos.longitude", Fix.longitude},
                                                   {"locpos.latitude", Fix.latitude},
                                                   {"courseToElement", Inbound},
                                                   {"interceptOffset", 45.0},
                                                   {"to", 1.0}};
    for (const auto& [key, value] : keys)
        saved.set("p", std::string("proc[0].") + key, std::to_string(value));
    return InterceptProcedure::createFromIni(nullptr, &saved, "p", 0, nullptr);
}

std::string wayPoint(double eastMiles, double northMiles) {
    return "follow " + std::to_string(Fix.latitude + northMiles / MilesPerDegree) + " " +
           std::to_string(Fix.longitude + eastMiles / MilesPerDegree / std::cos(42.15 * M_PI / 180.0)) + "\n";
}

/// Along the plan, with a dent of 0.3 miles to the right on the line onto the fix; in the wind.
std::string card() {
    std::string text = "start 42.0 -28.5 altitude 3000ft heading 000 speed 100kt\nwind 250 12kt\n";
    const Place first = onPlane(First);
    text += wayPoint(first.east, first.north);
    // 45 degrees off the line, from the left of it.
    const double off = -beside({0.0, 0.0}, Inbound, first), leg = (Inbound + 45.0) * M_PI / 180.0;
    const double length = off * std::sqrt(2.0);
    text += wayPoint(first.east + length * std::sin(leg), first.north + length * std::cos(leg));
    const auto onLine = [](double miles, double right) {
        const double angle = Inbound * M_PI / 180.0;
        return wayPoint(-miles * std::sin(angle) + right * std::cos(angle),
                        -miles * std::cos(angle) - right * std::sin(angle));
    };
    return text + onLine(5.0, 0.0) + onLine(4.0, 0.3) + onLine(2.5, 0.3) + onLine(1.5, 0.0) + onLine(0.0, 0.0) +
           onLine(-1.0, 0.0);
}

} // namespace

/// The whole way from the card to the figures, in the wind: what the pilot reads is where the aircraft is.
TEST(PlannedFlight, CrossTrackErrorAndWarningsAreThoseOfTheFlownPath) {
    FlightPlan plan;
    addTo(plan, std::make_unique<DirectProcedure>(First, nullptr));
    addTo(plan, interception());
    addTo(plan, std::make_unique<DirectProcedure>(Fix, nullptr));
    addTo(plan, std::make_unique<HoldingProcedure>(Fix, HoldingProcedure::Pattern{Inbound, 2.0, true}, nullptr));
    plan.setCurrent(0);
    plan.calculateCourseLists(Start, 914.4, 0.0);
    std::vector<double> switchedAt;
    double widest = 0.0, legLeft = 0.0;
    int compared = 0, warned = 0;
    ChartPosition lineBegins;
    for (const FlownRow& state : flyRows(card())) {
        const ChartPosition own(state.longitudeDegrees, state.latitudeDegrees);
        plan.updatePosRelated({own, state.altitudeMetres, state.groundSpeedKnots, state.headingDegrees});
        const IProcedure* current = plan.getCurrent();
        const Guidance& told = current->getGuidance();
        const Place place = onPlane(own);
        const double since = switchedAt.empty() ? state.seconds : state.seconds - switchedAt.back();
        if (plan.getCurrentIndex() == 0 && since > 30.0)
            EXPECT_NEAR(told.crossTrackError, std::fabs(beside(onPlane(First), 0.0, place)), 0.02) << state.seconds;
        if (plan.getCurrentIndex() == 2 && since > 30.0 && told.length > 0.2) {
            const Place begins = onPlane(lineBegins);
            const double course = std::atan2(-begins.east, -begins.north) * 180.0 / M_PI;
            const double right = beside({0.0, 0.0}, course, place);
            EXPECT_NEAR(told.crossTrackError, std::fabs(right), 0.02) << state.seconds;
            EXPECT_NEAR(told.length, std::hypot(place.east, place.north), 0.03) << state.seconds;
            EXPECT_NEAR(current->getETE(), told.length / state.groundSpeedKnots * 3600.0, 0.51);
            if (std::fabs(std::fabs(right) * 1852.0 - 150.0) > 30.0)
                EXPECT_EQ(current->getCourseWarning(), std::fabs(right) * 1852.0 > 150.0) << state.seconds;
            if (right > 0.05)
                EXPECT_TRUE(told.steerSide) << "it is right of the path";
            widest = std::max(widest, told.crossTrackError);
            warned += current->getCourseWarning() ? 1 : 0;
            legLeft = told.length;
            ++compared;
        }
        if (!plan.advanceWhenFinished())
            continue;
        switchedAt.push_back(state.seconds);
        lineBegins = own;
        plan.calculateCourseLists(own, state.altitudeMetres, state.headingDegrees);
    }
    EXPECT_EQ(plan.getCurrentIndex(), 3);
    EXPECT_EQ(switchedAt.size(), 3u);
    EXPECT_NEAR(widest, 0.3, 0.03);
    EXPECT_LT(legLeft, 0.3);
    EXPECT_GT(compared, 100);
    EXPECT_GT(warned, 40);
}

} // namespace skyvane
