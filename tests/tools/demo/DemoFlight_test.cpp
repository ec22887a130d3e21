#include "chart/geodesy/Angles.h"
#include "chart/geodesy/GreatCircle.h"
#include "demo/region/RegionFiles.h"
#include "demo/region/Sites.h"
#include "flightfeed/flight/LandingBeam.h"
#include "flightfeed/flight/PlanRoute.h"
#include "sensors/TemporaryFolder.h"
#include "tools/chartmaker/ChartMakerRun.h"
#include "tools/flightfeed/FlownCard.h"

#include <algorithm>
#include <cmath>

namespace skyvane::demo {
namespace {

constexpr double MetresPerMile = 1852.0;
constexpr double WarningMetres = 183.0; ///< Terrain less far below than this is coloured.

/// The demo flight over the region that it was made for, flown once.
struct DemoFlight : testing::Test {
    static void SetUpTestSuite() {
        landscape = std::make_unique<Landscape>(1);
        const Sites sites = settle(*landscape);
        const TemporaryFolder folder;
        for (const auto& [name, text] : makeRegionFiles(*landscape, sites))
            folder.write(name, text);
        const ChartMakerRun run({"compile", "--out", folder.path("charts"), "--vendor", "Demo", "--area", "Region",
                                 "--airports", folder.path(), "--fixes", folder.path("earth_fix.dat")});
        ASSERT_EQ(run.status, 0) << run.error;
        std::string error;
        const auto route = PlanRoute::open(projectPath("tools/demo/flight/fpl.ini"), folder.path("charts"), error);
        ASSERT_TRUE(route) << error;
        FlightCard card;
        for (const CardError& wrong : parseCard(projectFile("tools/demo/flight/first.card"), card))
            ADD_FAILURE() << "line " << wrong.line << ": " << wrong.message;
        runway = card.runway;
        card.route = route.get();
        ScriptedFlight flight(card);
        do
            states.push_back(flight.state());
        while (flight.advance(0.5));
    }
    static void TearDownTestSuite() {
        landscape.reset();
        states.clear();
    }

    static Spot spotOf(const FlightState& state) {
        return RegionPlane::toSpot({state.longitudeDegrees, state.latitudeDegrees});
    }
    static double clearance(const FlightState& state) {
        return state.altitudeMetres - std::max(landscape->height(spotOf(state)), 0.0);
    }
    /// The highest ground around a place.
    static double highestWithin(Spot middle, double metres) {
        double highest = 0.0;
        for (double x = -metres; x <= metres; x += 250.0)
            for (double y = -metres; y <= metres; y += 250.0)
                if (std::hypot(x, y) <= metres)
                    highest = std::max(highest, landscape->height(middle + Spot{x, y}));
        return highest;
    }
    static std::vector<FlightState> airborne() {
        std::vector<FlightState> flown;
        std::copy_if(states.begin(), states.end(), std::back_inserter(flown),
                     [](const FlightState& state) { return !state.onGround; });
        return flown;
    }

    static std::unique_ptr<Landscape> landscape;
    static std::vector<FlightState> states;
    static CardRunway runway;
};

std::unique_ptr<Landscape> DemoFlight::landscape;
std::vector<FlightState> DemoFlight::states;
CardRunway DemoFlight::runway;

TEST_F(DemoFlight, TakesHalfAnHourFromRunwayToRunway) {
    const std::vector<FlightState> flown = airborne();
    ASSERT_FALSE(flown.empty());
    EXPECT_NEAR(flown.back().timeSeconds - flown.front().timeSeconds, 1900.0, 200.0);
    EXPECT_NEAR(clearance(states.front()), 0.0, 1.0) << "stands on its runway";
    EXPECT_NEAR(clearance(states.back()), 0.0, 1.5) << "and on the other one";
    const RunwayOffset stopped = runwayOffset(runway, {states.back().latitudeDegrees, states.back().longitudeDegrees});
    EXPECT_NEAR(stopped.rightMetres, 0.0, 5.0);
    EXPECT_LT(-stopped.beforeMetres, runway.lengthMetres);
    EXPECT_GT(-stopped.beforeMetres, 100.0);
    for (const FlightState& state : states) {
        if (state.onGround) {
            EXPECT_NEAR(clearance(state), 0.0, 2.5) << state.timeSeconds;
        }
    }
}

/// Once it has turned towards a fix it flies straight there, and is at the plan's altitude above it.
TEST_F(DemoFlight, FliesTheLegsOfItsPlan) {
    struct Fix {
        const char* name;
        Spot spot;
        double feet;
    };
    const Fix fixes[] = {
        {"TARNA", {56818, 20982}, 2800}, {"BURNA", {47000, 26500}, 2000}, {"MOORA", {47000, 35000}, 1800},
        {"ALDRA", {46500, 42600}, 3000}, {"CAIRN", {42400, 46600}, 4300}, {"SCREE", {42900, 53000}, 4000},
        {"CALDR", {46500, 55100}, 2800}, {"BECKS", {49200, 53700}, 2250}, {"FLINN", {61500, 70000}, 1500}};
    size_t i = 0;
    for (const Fix& fix : fixes) {
        const auto away = [&](size_t at) { return distance(spotOf(states[at]), fix.spot); };
        int straight = 0;
        for (; away(i) > 250.0; ++i) {
            ASSERT_LT(i + 1, states.size()) << fix.name;
            if (away(i) > 1500.0 || std::fabs(states[i].rollDegrees) > 3.0)
                continue;
            const FlightState& state = states[i];
            const double bearing =
                calcBearing2({state.longitudeDegrees, state.latitudeDegrees}, RegionPlane::toPosition(fix.spot));
            const double aside = away(i) * std::sin((bearing - state.groundTrackDegrees) / DegreesPerRadian);
            EXPECT_NEAR(aside, 0.0, 20.0) << fix.name << " " << state.timeSeconds;
            ++straight;
        }
        EXPECT_GT(straight, 20) << fix.name;
        EXPECT_NEAR(states[i].altitudeMetres / MetresPerFoot, fix.feet, 90.0) << fix.name;
    }
}

TEST_F(DemoFlight, FliesThroughTheMountainsAndNotIntoThem) {
    int belowTheRidges = 0, warned = 0;
    for (size_t i = 0; i < states.size(); i += 20) {
        if (states[i].timeSeconds < 300.0 || states[i].timeSeconds > 1600.0)
            continue;
        EXPECT_GT(clearance(states[i]), 85.0) << states[i].timeSeconds;
        warned += clearance(states[i]) < WarningMetres ? 10 : 0;
        belowTheRidges += highestWithin(spotOf(states[i]), 2000.0) > states[i].altitudeMetres ? 10 : 0;
    }
    EXPECT_GT(belowTheRidges, 300) << "seconds between walls";
    EXPECT_GT(warned, 60) << "seconds with the ground below in warning colours";
}

TEST_F(DemoFlight, OthersCrossNearbyAndStayApart) {
    const auto count = static_cast<size_t>(states.front().trafficCount);
    ASSERT_GE(count, 5u);
    int near = 0;
    for (size_t i = 0; i < count; ++i) {
        double nearest = 1e9;
        for (const FlightState& state : states) {
            const TrafficState& other = state.traffic[i];
            const ChartPosition place(other.longitudeDegrees, other.latitudeDegrees);
            const double away = calcDistance2({state.longitudeDegrees, state.latitudeDegrees}, place) / MetresPerMile;
            const double feet = std::fabs(other.altitudeMetres - state.altitudeMetres) / MetresPerFoot;
            EXPECT_TRUE(away > 0.3 || feet > 500.0) << other.name << " at " << state.timeSeconds;
            EXPECT_GE(other.altitudeMetres, landscape->height(RegionPlane::toSpot(place)))
                << other.name << " at " << state.timeSeconds;
            nearest = feet < 2000.0 && !state.onGround ? std::min(nearest, away) : nearest;
        }
        near += nearest < 2.5 ? 1 : 0;
    }
    EXPECT_GE(near, 4);
}

} // namespace
} // namespace skyvane::demo
