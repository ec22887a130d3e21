#include "chart/geodesy/Angles.h"
#include "chart/store/ChartFixture.h"
#include "procedures/direct/DirectProcedure.h"
#include "procedures/highway/HighwayBuilder.h"
#include "procedures/intercept/InterceptProcedure.h"
#include "procedures/plan/AirportCorridor.h"
#include "procedures/plan/FlightPlan.h"
#include "procedures/plan/RouteProfile.h"

#include <cmath>

namespace skyvane {
namespace {

/// Distance in nautical miles and bearing on a sphere of 3440.07 miles, by haversine and vectors: a pilot's own sums.
double milesBetween(const ChartPosition& a, const ChartPosition& b) {
    const double d = M_PI / 180.0, lat = (b.latitude - a.latitude) * d, lon = (b.longitude - a.longitude) * d;
    const double h = std::pow(std::sin(lat / 2.0), 2) +
                     std::cos(a.latitude * d) * std::cos(b.latitude * d) * std::pow(std::sin(lon / 2.0), 2);
    return 2.0 * 3440.0652 * std::asin(std::sqrt(h));
}
double bearingOf(const ChartPosition& a, const ChartPosition& b) {
    const double d = M_PI / 180.0, lon = (b.longitude - a.longitude) * d;
    const double y = std::sin(lon) * std::cos(b.latitude * d);
    const double x = std::cos(a.latitude * d) * std::sin(b.latitude * d) -
                     std::sin(a.latitude * d) * std::cos(b.latitude * d) * std::cos(lon);
    const double bearing = std::atan2(y, x) / d;
    return bearing < 0.0 ? bearing + 360.0 : bearing;
}
/// Miles that a place lies beside the great circle from a to b.
double milesBeside(const ChartPosition& a, const ChartPosition& b, const ChartPosition& place) {
    const double d = M_PI / 180.0;
    return std::fabs(std::asin(std::sin(milesBetween(a, place) / 3440.0652) *
                               std::sin((bearingOf(a, place) - bearingOf(a, b)) * d)) *
                     3440.0652);
}

constexpr double Knots = 120.0;

/// Moves on a course for a second.
ChartPosition flown(const ChartPosition& from, double course) {
    const double degrees = Knots / 3600.0 / 60.0407, radians = course * M_PI / 180.0;
    return {from.longitude + degrees * std::sin(radians) / std::cos(from.latitude * M_PI / 180.0),
            from.latitude + degrees * std::cos(radians)};
}

TEST(PlannedFlight, guidesFromPlaceToPlaceAndMovesOn) {
    const ChartPosition start(8.0, 50.0), first(8.6, 50.1), second(8.5, 50.4);
    FlightPlan plan;
    for (const ChartPosition& place : {first, second}) {
        auto direct = std::make_unique<DirectProcedure>(place, nullptr);
        ProcedureValues values;
        values.targetGroundSpeed = Knots;
        values.checkCourse = true;
        values.positionTolerance = 50.0;
        direct->setValues(values);
        plan.add(std::move(direct));
    }
    plan.setCurrent(0);
    ChartPosition own = start;
    double heading = bearingOf(start, first);
    plan.calculateCourseLists(own, 1000.0, heading);
    int seconds = 0, firstLeg = 0;
    for (; seconds < 3600 && !(plan.getCurrentIndex() == 1 && milesBetween(own, second) < 0.05); ++seconds) {
        plan.updatePosRelated({own, 1000.0, Knots, heading});
        IProcedure* current = plan.getCurrent();
        const ChartPosition& target = plan.getCurrentIndex() == 0 ? first : second;
        if (firstLeg == 0 && seconds % 60 == 30) {
            EXPECT_NEAR(current->getGuidance().crossTrackError, milesBeside(start, first, own), 0.003) << seconds;
            EXPECT_NEAR(current->getLength(), milesBetween(own, first), 0.02) << seconds;
            EXPECT_LT(std::fabs(Angle180(current->getBearing() - bearingOf(own, first))), 0.2) << seconds;
            EXPECT_NEAR(current->getETE(), milesBetween(own, first) / Knots * 3600.0, 2.0) << seconds;
        }
        EXPECT_FALSE(seconds > 90 && firstLeg == 0 && current->getCourseWarning()) << seconds;
        if (plan.advanceWhenFinished()) {
            firstLeg = seconds;
            plan.calculateCourseLists(own, 1000.0, heading);
        }
        // At three degrees a second towards what is shown.
        const double turn = Angle180(bearingOf(own, target) - heading);
        heading += std::max(-3.0, std::min(3.0, turn));
        own = flown(own, heading);
    }
    const double byHand = (milesBetween(start, first) + milesBetween(first, second)) / Knots * 3600.0;
    EXPECT_NEAR(firstLeg, milesBetween(start, first) / Knots * 3600.0, 10.0);
    EXPECT_NEAR(seconds, byHand, 60.0); // a turn costs some
    EXPECT_EQ(plan.getCurrentIndex(), 1);
    plan.updatePosRelated({second, 1000.0, Knots, heading});
    EXPECT_FALSE(plan.advanceWhenFinished()); // the last one stays
    EXPECT_EQ(plan.getCurrentIndex(), 1);
}

/// A straight path to the north, 100 km long.
void goNorth(FlightPlan& plan) {
    plan.add(std::make_unique<DirectProcedure>(ChartPosition(8.0, 50.9), nullptr));
    plan.getCurrent()->setLocationAltitude(2000.0);
    plan.calculateCourseLists({8.0, 50.0}, 1000.0, 0.0);
}

TEST(RouteProfile, asksForTheGroundAtEqualDistancesAndPaintsIt) {
    FlightPlan plan;
    goNorth(plan);
    const auto profile = createPointCallFromProcedures(plan, nullptr, 64);
    ASSERT_TRUE(profile);
    EXPECT_NEAR(profile->totalMetres, milesBetween({8.0, 50.0}, {8.0, 50.9}) * 1852.0, 20.0);
    for (size_t i = 0; i < 64; ++i) {
        EXPECT_NEAR(profile->positions[i].latitude, 50.0 + 0.9 * static_cast<double>(i) / 63.0, 2e-4);
        EXPECT_NEAR(profile->pathAltitudes[i], 1000.0 + 1000.0 * static_cast<double>(i) / 63.0, 5.0);
    }
    EXPECT_NEAR(profile->samplingInterval, std::pow(profile->totalMetres / 2000.0 / 63.0, 2), 1e-9);
    ASSERT_EQ(profile->stops.size(), 1u);
    EXPECT_TRUE(profile->stops[0].isAltitudeSet);
    EXPECT_EQ(profile->stops[0].distanceMetres, profile->totalMetres);
    EXPECT_NEAR(profile->stops[0].altitudeMetres, 2000.0, 1e-6);
    EXPECT_EQ(profile->stops[0].location.type, ProcedureLocation::PlainPosition);
    profile->heights.assign(64, 100.0f);
    profile->heights[10] = 400.0f;
    profile->minimum = 100.0f;
    profile->maximum = 400.0f;
    std::vector<uint32_t> pixels(64 * 256);
    paintSideProfile(*profile, 256, pixels.data());
    EXPECT_EQ(pixels[0], 0u);
    EXPECT_NE(pixels[10], 0u);
    EXPECT_EQ(pixels[254 * 64], 0u);
    EXPECT_NE(pixels[255 * 64], 0u);
    profile->known[10] = 0;
    paintSideProfile(*profile, 256, pixels.data());
    EXPECT_EQ(pixels[10], 0u) << "nobody knows";
    plan.getCurrent()->setLocationAltitude(ProcedureValues::NoAltitude);
    EXPECT_FALSE(createPointCallFromProcedures(plan, nullptr, 64)->stops[0].isAltitudeSet);
    FlightPlan empty;
    EXPECT_FALSE(createPointCallFromProcedures(empty, nullptr, 64));
}

class Corridor : public ChartTest {};

TEST_F(Corridor, holdsTheAirportsBesideThePathInItsOrder) {
    Elements elements;
    elements.push_back(airport("FAR", 8.3, 50.4));    // 21 km beside it
    elements.push_back(airport("LATE", 8.05, 50.8));  // 3.5 km
    elements.push_back(airport("EARLY", 7.95, 50.2)); // 3.6 km
    elements.push_back(airport("BEHIND", 8.0, 49.9)); // 11 km before the start
    elements.push_back(airport("SHUT", 8.0, 50.5));
    static_cast<AirportElement&>(*elements.back()).isClosed = true;
    elements.push_back(airport("HELI", 8.0, 50.6));
    static_cast<AirportElement&>(*elements.back()).isHeliport = true;
    install("V", "a", elements);
    const auto store = open();
    FlightPlan plan;
    goNorth(plan);
    const auto names = [&](double width, AirportKinds kinds) {
        std::string text;
        for (const AirportRecord& record : findAirportsInCorridor(plan, *store, width, kinds))
            text += nameOf(store->getChartElement(record.chartIndex)) + " ";
        return text;
    };
    AirportKinds kinds;
    EXPECT_EQ(names(8000.0, kinds), "EARLY HELI LATE ");
    kinds.heliports = false;
    EXPECT_EQ(names(8000.0, kinds), "EARLY LATE ");
    EXPECT_EQ(names(6000.0, kinds), "");
    EXPECT_EQ(names(50000.0, kinds).substr(0, 13), "BEHIND EARLY ");
}

TEST(Highway, takesAnyShapeThatFitsItsIndices) {
    FlightPlan plan;
    goNorth(plan);
    GateShape bar; // one triangle, tilted along the course
    bar.corners = {
        {{-0.5f, 0.5f, 0.5f}, {0, 0, 1}}, {{0.5f, 0.5f, 0.5f}, {0, 1, 0}}, {{0.0f, -0.5f, -0.5f}, {0, 0, -1}}};
    bar.indices = {0, 1, 2};
    GateShape wrong = bar, huge = bar;
    wrong.indices[2] = 3;
    huge.corners.resize(GateShape::MostCorners + 1);
    HighwayBuilder highway;
    for (const GateShape& shape : {bar, wrong, huge, GateShape()})
        highway.setShape(shape);
    HighwayMesh mesh;
    const HighwayBuilder::Aircraft aircraft{true, {8.0, 50.3}, 1300.0, {60.0, 40.0}};
    highway.setPath(plan.getCurrent()->getCourseList());
    highway.exchange(aircraft, mesh);
    highway.runRound();
    ASSERT_TRUE(highway.exchange(aircraft, mesh));
    ASSERT_EQ(mesh.vertices.size() % 3, 0u);
    const HighwayVertex* corner = mesh.vertices.data();
    EXPECT_NEAR(corner[0].position.getDistanceFrom(corner[1].position), 60.0f, 0.1f);
    EXPECT_NEAR(corner[0].position.Z - corner[2].position.Z, 66.0f, 0.1f);
    EXPECT_EQ(corner[0].color, 0xffff00ffu) << "looks along the course";
    EXPECT_LT(corner[1].color & 0xff, 0xe0u) << "looks up";
}

TEST(Highway, standsOnThePathAtEqualDistancesAndFollows) {
    FlightPlan plan;
    goNorth(plan);
    HighwayBuilder highway;
    HighwayMesh mesh;
    HighwayBuilder::Aircraft aircraft{true, {8.0, 50.3}, 1300.0, {60.0, 40.0}};
    EXPECT_FALSE(highway.exchange(aircraft, mesh));
    highway.setPath(plan.getCurrent()->getCourseList());
    ASSERT_TRUE(highway.runRound());
    ASSERT_TRUE(highway.exchange(aircraft, mesh));
    ASSERT_GT(mesh.vertices.size(), 50u * HighwayMesh::VerticesPerGate);
    for (size_t i = 0; i < mesh.vertices.size(); i += HighwayMesh::VerticesPerGate) {
        irr::core::vector3d<float> middle;
        for (size_t corner = 0; corner < 4; ++corner)
            middle += mesh.vertices[i + corner].position / 4.0f;
        EXPECT_NEAR(middle.X, 0.0f, 1.0f);
        EXPECT_NEAR(middle.Y, 1333.3f + middle.Z * 1000.0f / 100075.0f, 5.0f); // on the climb
        EXPECT_NEAR(mesh.vertices[i].position.getDistanceFrom(mesh.vertices[i + 1].position), 60.0f, 0.1f);
        EXPECT_NEAR(mesh.vertices[i].normal.Z, -1.0f, 0.01f);
        EXPECT_EQ(mesh.vertices[i].color, 0xffff00ffu);
    }
    for (const uint16_t index : mesh.indices)
        ASSERT_LT(index, mesh.vertices.size());
    const size_t standard = mesh.vertices.size();
    aircraft.size.spacingMetres = 2000.0;
    highway.exchange(aircraft, mesh);
    highway.runRound();
    ASSERT_TRUE(highway.exchange(aircraft, mesh));
    EXPECT_NEAR(mesh.vertices.size(), standard / 2, 4 * HighwayMesh::VerticesPerGate) << "other distances";
    aircraft.position.latitude = 50.34; // 4.4 km on
    EXPECT_FALSE(highway.exchange(aircraft, mesh));
    highway.runRound();
    EXPECT_FALSE(highway.exchange(aircraft, mesh));
    aircraft.position.latitude = 50.35; // 5.6 km
    EXPECT_FALSE(highway.exchange(aircraft, mesh));
    highway.runRound();
    EXPECT_TRUE(highway.exchange(aircraft, mesh));
    EXPECT_EQ(mesh.centre.latitude, 50.35);
    highway.setPath({});
    aircraft.available = false;
    highway.exchange(aircraft, mesh);
    highway.runRound();
    EXPECT_TRUE(highway.exchange(aircraft, mesh));
    EXPECT_TRUE(mesh.vertices.empty());
}

} // namespace
} // namespace skyvane
