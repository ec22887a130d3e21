#include "displays/mapmath/elements/ElementFilter.h"

#include "chart/elements/AirportElement.h"
#include "chart/elements/AirspaceElement.h"
#include "chart/elements/AirwayElement.h"
#include "chart/elements/GroundGeometryElement.h"
#include "chart/elements/ObstructionElement.h"
#include "chart/elements/VORElement.h"
#include "chart/elements/WaypointElement.h"

#include <gtest/gtest.h>
#include <limits>

namespace skyvane {
namespace {

/// The static bytes of an element.
struct Bytes {
    explicit Bytes(const IChartElement& element) { element.writeStaticData(bytes); }
    operator const char*() const { return bytes; }
    char bytes[IChartElement::StaticDataSize];
};

const MapSwitches usual;

TEST(MapFilter, airports) {
    AirportElement field, towered, heliport;
    towered.isTowered = true;
    heliport.isHeliport = true;
    EXPECT_TRUE((MapFilter{55.0, usual}.showsAirport(Bytes(field))));
    EXPECT_FALSE((MapFilter{55.1, usual}.showsAirport(Bytes(field))));
    EXPECT_TRUE((MapFilter{200.0, usual}.showsAirport(Bytes(towered))));
    EXPECT_FALSE((MapFilter{1.0, usual}.showsAirport(Bytes(heliport))));
    EXPECT_TRUE((MapFilter{1.0, usual, true}.showsAirport(Bytes(heliport)))); // what a procedure leads to

    using Flag = bool AirportElement::*;
    using Switch = bool MapSwitches::*;
    const std::pair<Flag, Switch> pairs[] = {{&AirportElement::isClosed, &MapSwitches::closed},
                                             {&AirportElement::isHeliport, &MapSwitches::heliports},
                                             {&AirportElement::isPrivate, &MapSwitches::privateAirports},
                                             {&AirportElement::hasGliders, &MapSwitches::glider}};
    for (const auto& pair : pairs) {
        AirportElement airport;
        airport.*pair.first = true;
        MapSwitches switches;
        EXPECT_FALSE((MapFilter{1.0, switches}.showsAirport(Bytes(airport))));
        switches.*pair.second = true;
        EXPECT_TRUE((MapFilter{1.0, switches}.showsAirport(Bytes(airport))));
    }
}

TEST(MapFilter, navaidsFixesAndAirwaysByLevel) {
    VORElement vor;
    WaypointElement fix;
    AirwayElement airway;
    vor.use.lowAltitude = fix.use.lowAltitude = airway.isLowAltitude = true;
    MapSwitches low, high;
    low.lowIFR = low.airways = high.highIFR = high.airways = true;
    EXPECT_TRUE((MapFilter{2.5, usual}.showsNavaid(Bytes(vor))));
    EXPECT_FALSE((MapFilter{2.6, usual}.showsNavaid(Bytes(vor))));
    EXPECT_TRUE((MapFilter{30.0, low}.showsNavaid(Bytes(vor))));
    EXPECT_FALSE((MapFilter{30.0, high}.showsNavaid(Bytes(vor))));
    EXPECT_FALSE((MapFilter{30.1, low}.showsNavaid(Bytes(vor))));
    EXPECT_TRUE((MapFilter{0.3, usual}.showsWaypoint(Bytes(fix))));
    EXPECT_FALSE((MapFilter{0.31, usual}.showsWaypoint(Bytes(fix))));
    EXPECT_TRUE((MapFilter{15.0, low}.showsWaypoint(Bytes(fix))));
    EXPECT_FALSE((MapFilter{15.1, low}.showsWaypoint(Bytes(fix))));
    EXPECT_TRUE((MapFilter{150.0, usual, true}.showsWaypoint(Bytes(fix))));
    EXPECT_FALSE((MapFilter{1.0, usual}.showsAirway(Bytes(airway))));
    EXPECT_TRUE((MapFilter{30.0, low}.showsAirway(Bytes(airway))));
    EXPECT_FALSE((MapFilter{30.0, high}.showsAirway(Bytes(airway))));
    EXPECT_FALSE((MapFilter{30.1, low}.showsAirway(Bytes(airway))));
    low.airways = false;
    EXPECT_FALSE((MapFilter{1.0, low}.showsAirway(Bytes(airway))));
}

TEST(MapFilter, obstructionsByClearance) {
    ObstructionElement mast;
    mast.altitudeMslFeet = 3000;
    const double foot = 0.3048;
    EXPECT_TRUE((MapFilter{15.0, usual}.showsObstruction(Bytes(mast), 4099.0 * foot)));
    EXPECT_FALSE((MapFilter{15.0, usual}.showsObstruction(Bytes(mast), 4101.0 * foot)));
    EXPECT_FALSE((MapFilter{15.1, usual}.showsObstruction(Bytes(mast), 1000.0)));
    EXPECT_TRUE((MapFilter{1.0, usual}.showsObstruction(Bytes(mast), std::numeric_limits<double>::quiet_NaN())));
    MapSwitches switches;
    switches.lowObstacles = true;
    EXPECT_TRUE((MapFilter{1.0, switches}.showsObstruction(Bytes(mast), 4101.0 * foot)));
    switches.terrainEnable = false;
    EXPECT_FALSE((MapFilter{1.0, switches}.showsObstruction(Bytes(mast), 1000.0)));
    mast.altitudeMslFeet = 40000; // beyond what the bytes can say
    EXPECT_TRUE((MapFilter{1.0, usual}.showsObstruction(Bytes(mast), 30000.0)));
}

TEST(MapFilter, airspacesByFloorAndClass) {
    AirspaceElement fir, danger;
    fir.airspaceClass = "FIR";
    danger.airspaceClass = "RA";
    danger.bottomFeet = AirspaceElement::Unlimited;
    fir.bottomFeet = 9000;
    bool irrelevant[AirspaceElement::StaticClassCount] = {};
    EXPECT_TRUE((MapFilter{1.0, usual}.showsAirspace(Bytes(fir), irrelevant, 9999)));
    EXPECT_FALSE((MapFilter{1.0, usual}.showsAirspace(Bytes(fir), irrelevant, 8900)));
    EXPECT_TRUE((MapFilter{1.0, usual}.showsAirspace(Bytes(danger), irrelevant, 500)));
    EXPECT_TRUE((MapFilter{0.01, usual}.showsAirspace(Bytes(danger), irrelevant, 500))); // never lost by zooming in
    irrelevant[3] = true;
    EXPECT_FALSE((MapFilter{1.0, usual}.showsAirspace(Bytes(fir), irrelevant, 9999)));
    EXPECT_TRUE((MapFilter{1.0, usual}.showsAirspace(Bytes(danger), irrelevant, 9999)));
    MapSwitches switches;
    switches.irrelevant = true;
    EXPECT_TRUE((MapFilter{1.0, switches}.showsAirspace(Bytes(fir), irrelevant, 9999)));
    switches.airspaces = false;
    EXPECT_FALSE((MapFilter{1.0, switches}.showsAirspace(Bytes(danger), irrelevant, 9999)));
}

TEST(MapFilter, groundBySwitchAndSize) {
    GroundGeometryElement road;
    road.feature = 9;
    road.geoType = GroundGeometryElement::Line;
    road.additionalData = 32; // 16 m
    road.vertices = {{1.0, 42.0}, {1.4, 42.4}};
    road.recalculateBoundingBox();
    EXPECT_TRUE((MapFilter{40.0, usual}.showsGround(Bytes(road))));
    road.additionalData = 18; // 9 m
    EXPECT_FALSE((MapFilter{40.0, usual}.showsGround(Bytes(road))));
    EXPECT_TRUE((MapFilter{1.0, usual}.showsGround(Bytes(road))));
    MapSwitches switches;
    switches.highways = false;
    EXPECT_FALSE((MapFilter{1.0, switches}.showsGround(Bytes(road))));
    road.feature = 15; // a border that a road runs along
    EXPECT_TRUE((MapFilter{1.0, switches}.showsGround(Bytes(road))));
    road.feature = 12;
    EXPECT_FALSE((MapFilter{1.0, usual}.showsGround(Bytes(road)))); // coastlines are off at first
    GroundGeometryElement apron;
    apron.feature = 4;
    apron.vertices = {{1.0, 42.0}, {1.002, 42.0}, {1.002, 42.001}};
    apron.recalculateBoundingBox();
    EXPECT_TRUE((MapFilter{0.02, usual}.showsGround(Bytes(apron))));
    EXPECT_FALSE((MapFilter{1.0, usual}.showsGround(Bytes(apron))));
}

} // namespace
} // namespace skyvane
