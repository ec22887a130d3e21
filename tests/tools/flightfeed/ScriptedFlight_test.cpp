#include "flightfeed/flight/LandingBeam.h"
#include "tools/flightfeed/FlownCard.h"

#include <algorithm>
#include <cmath>
#include <cstring>

using namespace skyvane;

namespace {

const char* const CRUISE = "start 42 -28.5 altitude 3000ft heading 010 speed 100kt\n";

std::vector<FlightState> cruise(const std::string& lines) {
    return fly(CRUISE + lines, 0.1);
}

double greatest(const std::vector<FlightState>& states, double (*value)(const FlightState&)) {
    double out = -1e9;
    for (const FlightState& state : states)
        out = std::max(out, value(state));
    return out;
}

} // namespace

TEST(ScriptedFlight, StandardRateTurnTakesTwoMinutesForTheCircle) {
    const auto states = cruise("turn left standard by 360\nlevel 1s\n");
    const auto in = [](const FlightState& s) { return s.headingRateDegreesPerSecond < -2.97; };
    const auto count = std::count_if(states.begin(), states.end(), in);
    EXPECT_NEAR(static_cast<double>(count) * 0.1, 112.0, 8.0);
    EXPECT_NEAR(greatest(states, [](const FlightState& s) { return -s.headingRateDegreesPerSecond; }), 3.0, 0.15);
    EXPECT_NEAR(states.back().headingDegrees, 10.0, 0.5);
    EXPECT_LT(greatest(states, [](const FlightState& s) { return std::abs(s.altitudeMetres - 914.4); }), 1.0);
}

TEST(ScriptedFlight, TurnGoesTheWrittenWayRoundAndRollsOutOnTheHeading) {
    const auto states = cruise("turn left bank 30 to 060\nlevel 3s\n");
    EXPECT_NEAR(greatest(states, [](const FlightState& s) { return -s.rollDegrees; }), 30.0, 0.3);
    EXPECT_LT(greatest(states, [](const FlightState& s) { return s.rollDegrees; }), 1.0);
    EXPECT_NEAR(states.back().headingDegrees, 60.0, 0.3);
    // 310 degrees at 5.7 degrees per second: the long way.
    EXPECT_GT(states.back().timeSeconds, 50.0);
    EXPECT_LT(greatest(states, [](const FlightState& s) { return std::abs(ballAngleDegrees(s)); }), 0.05);
}

TEST(ScriptedFlight, HeadingThatIsAlreadyFlownNeedsNoCircle) {
    EXPECT_LT(cruise("turn right standard to 010\nturn left standard to 010\n").back().timeSeconds, 2.0);
}

TEST(ScriptedFlight, ClimbHasTheWrittenRateAndEndsAtTheAltitude) {
    const auto states = cruise("climb 500ftmin to 3400ft\nlevel 5s\ndescend 700ftmin to 3000ft\nlevel 5s\n");
    EXPECT_NEAR(greatest(states, [](const FlightState& s) { return s.verticalSpeedMetresPerSecond; }), 2.54, 0.02);
    EXPECT_NEAR(greatest(states, [](const FlightState& s) { return -s.verticalSpeedMetresPerSecond; }), 3.556, 0.02);
    EXPECT_NEAR(greatest(states, [](const FlightState& s) { return s.altitudeMetres; }), 3400.0 * 0.3048, 1.0);
    EXPECT_NEAR(states.back().altitudeMetres, 3000.0 * 0.3048, 1.0);
}

TEST(ScriptedFlight, SlipLowersTheWingOnTheBallsSideAndKeepsThePath) {
    const auto states = cruise("level 5s\nslip 5deg 20s\nlevel 20s\n");
    const FlightState& slipping = states[200];
    EXPECT_NEAR(ballAngleDegrees(slipping), 5.0, 0.1);
    EXPECT_NEAR(slipping.rollDegrees, 5.0, 0.3);         // right wing low,
    EXPECT_LT(slipping.headingDegrees, 10.0 - 3.0);      // the nose to the left of the path,
    EXPECT_NEAR(slipping.groundTrackDegrees, 10.0, 1.0); // which stays
    EXPECT_NEAR(ballAngleDegrees(states.back()), 0.0, 0.05);
    const auto left = cruise("slip -5deg 20s\n");
    EXPECT_NEAR(ballAngleDegrees(left[150]), -5.0, 0.1);
    EXPECT_NEAR(left[150].rollDegrees, -5.0, 0.3);
}

TEST(ScriptedFlight, DirectReachesThePointInACrossWind) {
    const auto states = cruise("wind 300 25kt\ndirect 42.1 -28.4\n");
    EXPECT_NEAR(states.back().latitudeDegrees, 42.1, 0.002);
    EXPECT_NEAR(states.back().longitudeDegrees, -28.4, 0.003);
}

TEST(ScriptedFlight, FollowsAPathOfWayPointsInACrossWind) {
    // Up, a half circle of 1,300 m to the right in steps of 15 degrees, and down again.
    const double radius = 1300.0, north = 111070.0, east = 82700.0; // metres per degree here
    std::string lines = "wind 270 15kt\nfollow 42.1 -28.5 altitude 4000ft\n";
    for (int step = 1; step <= 12; ++step) {
        const double angle = step * 15.0 * M_PI / 180.0;
        lines += "follow " + std::to_string(42.1 + radius * std::sin(angle) / north) + " " +
                 std::to_string(-28.5 + radius * (1.0 - std::cos(angle)) / east) + "\n";
    }
    const auto states = cruise(lines + "follow 42.0 -28.46856 altitude 3200ft\n");
    double widest = 0.0;
    bool wasHigh = false;
    for (const FlightState& state : states) {
        const double x = (state.longitudeDegrees + 28.5) * east, y = (state.latitudeDegrees - 42.1) * north;
        const double beside = y > 0.0 ? std::hypot(x - radius, y) - radius : x < radius ? x : x - 2.0 * radius;
        if (state.timeSeconds > 40.0) // it began 10 degrees off
            widest = std::max(widest, std::abs(beside));
        wasHigh = wasHigh || std::abs(state.altitudeMetres - 1219.2) < 3.0;
    }
    EXPECT_LT(widest, 60.0);
    EXPECT_TRUE(wasHigh);
    EXPECT_NEAR(states.back().latitudeDegrees, 42.0, 0.001);
    EXPECT_NEAR(states.back().altitudeMetres, 3200.0 * 0.3048, 8.0);
}

class WholeFlight : public ::testing::TestWithParam<const char*> {};

TEST_P(WholeFlight, TakesOffAndLandsOnTheRunway) {
    FlightCard card;
    ASSERT_TRUE(parseCard(cardText(GetParam()), card).empty());
    const auto states = fly(cardText(GetParam()), 1.0 / 30.0);
    std::vector<FlightState> changes;
    for (size_t i = 1; i < states.size(); ++i)
        if (states[i].onGround != states[i - 1].onGround)
            changes.push_back(states[i]);
    ASSERT_EQ(changes.size(), 2u);
    EXPECT_GT(changes[0].indicatedAirspeedKnots, 55.0);
    const FlightState& touch = changes[1];
    const RunwayOffset offset = runwayOffset(card.runway, {touch.latitudeDegrees, touch.longitudeDegrees});
    EXPECT_LT(offset.beforeMetres, 0.0);
    EXPECT_GT(offset.beforeMetres, -600.0);
    EXPECT_NEAR(offset.rightMetres, 0.0, 2.0);
    EXPECT_NEAR(std::remainder(touch.headingDegrees - card.runway.courseDegrees, 360.0), 0.0, 2.0);
    EXPECT_GT(touch.verticalSpeedMetresPerSecond, -0.8);
    EXPECT_NEAR(states.back().groundSpeedKnots, 0.0, 0.7);
    EXPECT_NEAR(states.back().altitudeMetres, card.runway.elevationMetres, 0.1);
}

INSTANTIATE_TEST_SUITE_P(Cards, WholeFlight, ::testing::Values("demo.card", "short.card"));

TEST(ScriptedFlight, FlightAfterRestartIsTheSameToTheBit) {
    FlightCard card;
    ASSERT_TRUE(parseCard(cardText("short.card"), card).empty());
    ScriptedFlight flight(card);
    std::vector<FlightState> first;
    while (flight.advance(0.25))
        first.push_back(flight.state());
    flight.restart();
    for (const FlightState& state : first) {
        ASSERT_TRUE(flight.advance(0.25));
        ASSERT_EQ(flight.state().latitudeDegrees, state.latitudeDegrees);
        ASSERT_EQ(flight.state().headingDegrees, state.headingDegrees);
        ASSERT_EQ(flight.state().altitudeMetres, state.altitudeMetres);
        ASSERT_EQ(flight.state().traffic[0].longitudeDegrees, state.traffic[0].longitudeDegrees);
    }
}

TEST(ScriptedFlight, OtherAircraftFlyAsWritten) {
    const auto states = cruise("traffic 42.0 -28.0 altitude 1000ft heading 090 speed 120kt\n"
                               "traffic 42.1 -28.0 altitude 1000ft heading 000 speed 120kt turn 3 climb 600ftmin\n"
                               "level 120s\n");
    const FlightState& end = states.back();
    ASSERT_EQ(end.trafficCount, 2);
    // Two minutes at 120 knots are four nautical miles; the other flies one whole circle.
    EXPECT_NEAR((end.traffic[0].longitudeDegrees + 28.0) * std::cos(42.0 * M_PI / 180.0) * 60.0, 4.0, 0.02);
    EXPECT_NEAR(end.traffic[1].latitudeDegrees, 42.1, 0.0002);
    EXPECT_NEAR(end.traffic[1].altitudeMetres, 2200.0 * 0.3048, 1.0);
}

TEST(LandingBeam, SaysWhereTheBeamLies) {
    CardRunway runway;
    runway.threshold = {42.0, -28.0};
    runway.courseDegrees = 90.0;
    runway.lengthMetres = 1700.0;
    const auto at = [&](double latitude, double longitude, double metres) {
        FlightState state;
        state.latitudeDegrees = latitude;
        state.longitudeDegrees = longitude;
        state.altitudeMetres = metres;
        setLandingBeam(runway, state);
        return state;
    };
    // 5 km out to the west, on the beams: 50 feet over the threshold and three degrees.
    const double longitude = -28.0 - 5000.0 / 82850.0;
    const double height = 15.24 + 5000.0 * std::tan(3.0 * M_PI / 180.0);
    EXPECT_NEAR(at(42.0, longitude, height).localizerDots, 0.0, 0.01);
    EXPECT_NEAR(at(42.0, longitude, height).glideslopeDots, 0.0, 0.02);
    // South of it is right of it: the beam lies to the left.
    EXPECT_NEAR(at(42.0 - 105.0 * 7.0 / 2.0 / 111080.0, longitude, height).localizerDots, -2.5, 0.02);
    EXPECT_GT(at(42.001, longitude, height).localizerDots, 0.3);
    // Above it the beam lies below.
    EXPECT_GT(at(42.0, longitude, height + 30.0).glideslopeDots, 0.5);
    EXPECT_EQ(at(42.0, longitude, height + 3000.0).glideslopeDots, 2.5);
    EXPECT_LT(at(42.0, longitude, height - 30.0).glideslopeDots, -0.5);
}
