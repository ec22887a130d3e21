#pragma once

#include "demo/region/Spot.h"

namespace skyvane::demo {

struct NavaidPlan {
    const char* ident;
    const char* name;
    const char* type; ///< As OurAirports has it.
    int kilohertz;
    const char* atIdent; ///< An airport beside which it stands, or null.
    Spot place;          ///< Else kilometres of the plane.
};

inline constexpr NavaidPlan navaidPlans[] = {
    {"SKV", "Skyvane", "VOR-DME", 113700, "XSKV", {}},  {"NCP", "Northcape", "VOR-DME", 115200, "XSNC", {}},
    {"WHV", "Westhaven", "VORTAC", 117300, "XSWH", {}}, {"SM", "Sandmere", "NDB", 352, "XSSD", {}},
    {"ROS", "Rosk", "NDB", 414, nullptr, {24.5, 47.0}},
};

struct FixPlan {
    const char* ident;
    Spot place; ///< Kilometres.
};

inline constexpr FixPlan fixPlans[] = {
    {"ALDEN", {8.0, 102.0}}, {"ALDRA", {46.5, 42.6}},     {"BECKS", {49.2, 53.7}}, {"BRISA", {40.0, 107.0}},
    {"BURNA", {47.0, 26.5}}, {"CAIRN", {42.4, 46.6}},     {"CALDR", {46.5, 55.1}}, {"CORRI", {42.0, 51.0}},
    {"DUNOR", {76.0, 84.0}}, {"EMBRA", {76.0, 44.0}},     {"FERIK", {26.0, 8.0}},  {"FLINN", {61.5, 70.0}},
    {"GRELA", {33.0, 82.0}}, {"HAVOS", {50.0, 4.0}},      {"KELPA", {6.0, 28.0}},  {"LUMEN", {60.0, 74.0}},
    {"MOORA", {47.0, 35.0}}, {"OSTRA", {79.0, 8.0}},      {"ROSKA", {10.0, 49.0}}, {"SANDA", {66.0, 52.0}},
    {"SCREE", {42.9, 53.0}}, {"TARNA", {56.818, 20.982}},
};

struct AirwayPlan {
    const char* name;
    int layer; ///< 1 low, 2 high.
    int baseFlightLevel;
    int topFlightLevel;
    const char* direction; ///< N both ways, F forward only.
    const char* points[6];
};

inline constexpr AirwayPlan airwayPlans[] = {
    {"V11", 1, 95, 195, "N", {"HAVOS", "SKV", "EMBRA", "LUMEN", "NCP", "DUNOR"}},
    {"V12", 1, 115, 195, "N", {"FERIK", "MOORA", "CORRI", "GRELA", "ALDEN"}},
    {"V14", 1, 120, 195, "F", {"KELPA", "ROS", "CORRI", "SM", "SANDA"}},
    {"V15", 1, 95, 195, "N", {"ROSKA", "WHV", "BRISA"}},
    {"UV21", 2, 200, 450, "N", {"KELPA", "SKV", "OSTRA"}},
    {"UV22", 2, 200, 450, "N", {"ALDEN", "WHV", "SKV", "HAVOS"}},
};

} // namespace skyvane::demo
