#pragma once

namespace skyvane::demo {

/// An airspace in OpenAir's own words, round an airport's runway or with corners of its own.
struct AirspacePlan {
    const char* airspaceClass;
    const char* name;
    const char* floor;
    const char* ceiling;
    const char* aroundIdent; ///< Null for a box.
    double radiusMiles;
    double stretchMiles; ///< Along the runway to both sides, for a shape that follows the approaches.
    double box[4];       ///< West, south, east, north in kilometres of the plane.
};

inline constexpr AirspacePlan airspacePlans[] = {
    {"CTR", "SKYVANE CTR", "SFC", "2500ft MSL", "XSKV", 4.5, 3.0, {}},
    {"C", "SKYVANE TMA 1", "1500ft MSL", "FL 95", "XSKV", 9.0, 4.0, {}},
    {"C", "SKYVANE TMA 2", "4500ft MSL", "FL 145", "XSKV", 17.0, 3.0, {}},
    {"D", "NORTHCAPE CTR", "SFC", "2000ft MSL", "XSNC", 4.0, 3.0, {}},
    {"CTR", "WESTHAVEN MIL CTR", "SFC", "3000ft MSL", "XSWH", 4.0, 2.5, {}},
    {"R", "SV-R 21 WESTHAVEN RANGE", "SFC", "FL 85", nullptr, 0.0, 0.0, {3.5, 58.0, 15.0, 82.0}},
    {"Q", "SV-D 7 CAPE FIRING", "SFC", "FL 100", nullptr, 0.0, 0.0, {64.0, 92.0, 79.0, 107.0}},
    {"P", "SV-P 3 SUMMIT RESERVE", "SFC", "9500ft MSL", nullptr, 0.0, 0.0, {33.0, 55.0, 42.0, 63.5}},
    {"W", "THORNMOOR GLIDER WAVE", "3000ft AGL", "FL 175", nullptr, 0.0, 0.0, {26.0, 34.0, 46.0, 53.0}},
    {"E", "SKYVANE CTA", "FL 95", "FL 195", nullptr, 0.0, 0.0, {1.0, 1.0, 81.0, 110.0}},
};

} // namespace skyvane::demo
