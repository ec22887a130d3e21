#include "displays/visionmath/VisionFilter.h"

#include "displays/mapmath/elements/ElementFilter.h"

namespace skyvane {
namespace {

/// A view that is neither so near that everything shows nor so wide that little does, in square degrees.
constexpr double sceneArea = 3.0;
constexpr unsigned usedByAirways = 4;

MapSwitches mapSwitches(const VisionSwitches& switches) {
    MapSwitches map;
    map.terrainEnable = switches.terrain;
    map.lowObstacles = switches.lowObstacles;
    map.privateAirports = switches.privateAirports;
    map.heliports = switches.heliports;
    map.glider = switches.glider;
    map.closed = switches.closed;
    map.lowIFR = switches.lowIFR;
    map.highIFR = switches.highIFR;
    return map;
}

} // namespace

bool VisionFilter::showsAirport(const char* bytes) const {
    const MapSwitches map = mapSwitches(switches);
    return MapFilter{sceneArea, map, isTarget}.showsAirport(bytes);
}

bool VisionFilter::showsNavaid(const char* bytes) const {
    const MapSwitches map = mapSwitches(switches);
    return MapFilter{sceneArea, map, isTarget}.showsNavaid(bytes);
}

bool VisionFilter::showsWaypoint(const char* bytes) const {
    if (!isTarget && !(static_cast<unsigned char>(bytes[1]) & usedByAirways))
        return switches.standAlone;
    const MapSwitches map = mapSwitches(switches);
    return MapFilter{sceneArea, map, isTarget}.showsWaypoint(bytes);
}

bool VisionFilter::showsObstruction(const char* bytes, double altitudeMetres) const {
    const MapSwitches map = mapSwitches(switches);
    return MapFilter{sceneArea, map, isTarget}.showsObstruction(bytes, altitudeMetres);
}

} // namespace skyvane
