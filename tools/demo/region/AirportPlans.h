#pragma once

#include "demo/region/Spot.h"

namespace skyvane::demo {

/// What an airport of the region is to be, before a place is found for it.
struct AirportPlan {
    enum class Site { Runway, Lake, Town };

    const char* ident;
    const char* name;
    const char* town;    ///< Which it serves.
    const char* type;    ///< As OurAirports has it.
    const char* surface; ///< Likewise; empty without a runway.
    int lengthFeet;
    int widthFeet;
    bool isLighted;
    Site site;
    Spot searchFrom; ///< Kilometres.
    Spot searchTo;
    double lowestMetres;
    double highestMetres;
    double steepest; ///< Rise over run of the runway.
};

inline constexpr AirportPlan airportPlans[] = {
    {"XSKV",
     "Skyvane International",
     "Port Skyvane",
     "large_airport",
     "ASP",
     8200,
     148,
     true,
     AirportPlan::Site::Runway,
     {46, 11},
     {68, 26},
     5,
     110,
     0.006},
    {"XSNC",
     "Northcape",
     "Northcape",
     "medium_airport",
     "ASP",
     5250,
     98,
     true,
     AirportPlan::Site::Runway,
     {46, 84},
     {62, 98},
     8,
     230,
     0.012},
    {"XSWH",
     "Westhaven Air Base",
     "Westhaven",
     "medium_airport",
     "CON",
     7000,
     148,
     true,
     AirportPlan::Site::Runway,
     {20, 64},
     {34, 82},
     5,
     260,
     0.010},
    {"XSTM",
     "Thornmoor",
     "Thornmoor",
     "small_airport",
     "GRS",
     2950,
     131,
     false,
     AirportPlan::Site::Runway,
     {40, 20},
     {56, 34},
     60,
     550,
     0.020},
    {"XSCP",
     "Corrie Pass",
     "Corrie",
     "small_airport",
     "GRS",
     1380,
     66,
     false,
     AirportPlan::Site::Runway,
     {28, 40},
     {50, 66},
     1150,
     1900,
     0.075},
    {"XSFI",
     "Flint Island",
     "Flint",
     "small_airport",
     "GRVL",
     2300,
     75,
     true,
     AirportPlan::Site::Runway,
     {66, 58},
     {76, 73},
     3,
     120,
     0.020},
    {"XSSD",
     "Sandmere",
     "Sandmere",
     "small_airport",
     "ASP",
     3280,
     75,
     true,
     AirportPlan::Site::Runway,
     {52, 46},
     {62, 66},
     3,
     180,
     0.016},
    {"XSGL",
     "Grey Lake Seaplane Base",
     "Greylake",
     "seaplane_base",
     "WATER",
     6560,
     500,
     false,
     AirportPlan::Site::Lake,
     {0, 0},
     {0, 0},
     0,
     0,
     0},
    {"XSPH",
     "Port Skyvane Hospital",
     "Port Skyvane",
     "heliport",
     "",
     0,
     0,
     true,
     AirportPlan::Site::Town,
     {0, 0},
     {0, 0},
     0,
     0,
     0},
    {"XSOF",
     "Old Ferry",
     "Ferry",
     "closed",
     "ASP",
     2620,
     75,
     false,
     AirportPlan::Site::Runway,
     {20, 18},
     {40, 34},
     5,
     250,
     0.020},
};

struct TownPlan {
    const char* name;
    Spot near; ///< Kilometres.
    double searchKilometres;
    double sizeMetres;
};

inline constexpr TownPlan townPlans[] = {
    {"Port Skyvane", {47, 22}, 8, 1900}, {"Northcape", {55, 92}, 8, 1000}, {"Westhaven", {22, 70}, 9, 1250},
    {"Thornmoor", {49, 30}, 6, 650},     {"Sandmere", {59, 58}, 6, 950},   {"Greylake", {33, 74}, 5, 550},
    {"Corrie", {36, 49}, 6, 420},        {"Ferry", {30, 22}, 8, 600},      {"Calder Bay", {37, 87}, 7, 750},
    {"Rosk", {23, 52}, 7, 450},          {"Eastmere", {63, 33}, 7, 500},   {"Flint", {70, 64}, 5, 350}};

} // namespace skyvane::demo
