#include "displays/mapmath/elements/GroundStyles.h"

#include "chart/elements/GroundGeometryElement.h"

#include <algorithm>

namespace skyvane {

namespace {

using Pattern = GroundStyle::Pattern;

constexpr GroundStyle taxiway = {0xff9aa0a8, 0xff9aa0a8, 0, 1.6f, 0.0f, Pattern::Plain, 20, 0.03f, 0.03f};
constexpr GroundStyle closedWay = {0xff837d74, 0xff837d74, 0, 1.6f, 1.0f, Pattern::Dashed, 21, 0.03f, 0.03f};
constexpr GroundStyle apron = {0xffa9aeb5, 0xff6a7078, 0, 1.0f, 0.9f, Pattern::Plain, 24, 0.06f, 0.03f};
constexpr GroundStyle closedApron = {0xff8d877e, 0xff6a665f, 0, 1.0f, 0.9f, Pattern::Dashed, 25, 0.06f, 0.03f};
constexpr GroundStyle border = {0, 0xff3b2c4d, 0x70f4eefa, 1.7f, 1.7f, Pattern::Dashed, 50, 10000.0f, 10000.0f};

constexpr GroundStyle styles[GroundGeometryElement::FeatureCount] = {
    taxiway,
    taxiway,
    closedWay,
    apron,
    apron,
    closedApron,
    {0xff3c4658, 0xff1f2733, 0, 1.0f, 1.0f, Pattern::Plain, 10, 0.03f, 0.03f},         // terminal
    {0xffc3c8ce, 0xff2f6fd0, 0, 1.0f, 1.2f, Pattern::Plain, 12, 0.03f, 0.03f},         // helipad
    {0xff566072, 0xff2b333f, 0, 1.0f, 1.0f, Pattern::Plain, 11, 0.03f, 0.03f},         // hangar
    {0xffffc860, 0xffffc860, 0xff6b3f12, 1.7f, 1.0f, Pattern::Plain, 40, 60.0f, 5.0f}, // highway
    {0xff2d3036, 0xff2d3036, 0, 1.2f, 1.0f, Pattern::Sleepers, 45, 15.0f, 15.0f},      // railway
    {0xff3f7fc4, 0xff2f6db3, 0, 1.5f, 1.1f, Pattern::Plain, 70, 60.0f, 5.0f},          // river
    {0, 0xff17375e, 0, 1.6f, 1.6f, Pattern::Plain, 60, 10000.0f, 10000.0f},            // coastline
    {0xff3f7fc4, 0xff2a5c9a, 0, 1.1f, 1.1f, Pattern::Plain, 80, 60.0f, 1.5f},          // lake
    border,
    border,
    border,
    border,
    border,
    {0xff3a3d43, 0xffe8e9eb, 0, 1.6f, 0.7f, Pattern::Plain, 15, 0.3f, 0.1f},  // runway
    {0x98f4e3a6, 0x908a7440, 0, 0.9f, 0.7f, Pattern::Plain, 90, 15.0f, 1.5f}, // built-up areas and others
};

constexpr uint8_t helipad = 7, highway = 9, railway = 10, river = 11, coastline = 12, lake = 13, firstBorder = 14,
                  runway = 19;

constexpr int lowestPriority = 300, selectOfLand = 102060, selectOfAirports = 398;

} // namespace

const GroundStyle& groundStyle(uint8_t feature) {
    return styles[std::min(feature, GroundGeometryElement::OtherFeature)];
}

bool isAirportGround(uint8_t feature) {
    return feature <= helipad + 1 || feature == runway;
}

bool isGroundSwitchedOn(uint8_t feature, const MapSwitches& switches) {
    if (isAirportGround(feature))
        return switches.taxiways;
    switch (feature) {
    case highway:
        return switches.highways;
    case railway:
        return switches.railways;
    case river:
    case lake:
        return switches.water;
    case coastline:
        return switches.coastlines;
    case firstBorder:
        return switches.countryborders;
    case firstBorder + 1:
        return switches.countryborders || switches.highways;
    case firstBorder + 2:
        return switches.countryborders || switches.railways;
    case firstBorder + 3:
        return switches.countryborders || switches.water;
    case firstBorder + 4:
        return switches.countryborders || switches.coastlines;
    default:
        return true;
    }
}

int groundPriority(uint8_t feature) {
    return lowestPriority - groundStyle(feature).priority;
}

int groundSelectPriority(uint8_t feature) {
    const bool isLand = !isAirportGround(feature) && feature < runway;
    return (isLand ? selectOfLand : selectOfAirports) - groundStyle(feature).priority;
}

} // namespace skyvane
