#pragma once

#include "displays/mapmath/MapSwitches.h"

#include <cstdint>

namespace skyvane {

/// How the features of the ground look, by the type number of GroundGeometryElement: quiet colours, so that
/// what matters for flying stands out over them.
struct GroundStyle {
    enum Pattern : uint8_t {
        Plain,
        Dashed,   ///< Borders, and what is closed.
        Sleepers, ///< Railways: short strokes across.
    };

    uint32_t fill;   ///< Of polygons; 0 for none.
    uint32_t line;   ///< Of lines, and of the outlines of polygons.
    uint32_t casing; ///< Along both sides of lines; 0 for none.
    float width;     ///< The least one of lines, in thousandths of the root of the screen's pixels.
    float outline;   ///< The same for the outlines of polygons; 0 for none.
    Pattern pattern;
    int16_t priority;   ///< High ones lie below.
    float largestArea;  ///< The largest view area, in square degrees, with this feature.
    float largestSmall; ///< The same for what is small: lines of less than 14 m, polygons of less than 20 hectares.
};

const GroundStyle& groundStyle(uint8_t feature);

/// Whether a user wants to see the feature.
bool isGroundSwitchedOn(uint8_t feature, const MapSwitches& switches);

/// On the ground of an airport, as against roads, water and borders.
bool isAirportGround(uint8_t feature);

int groundPriority(uint8_t feature);
int groundSelectPriority(uint8_t feature);

} // namespace skyvane
