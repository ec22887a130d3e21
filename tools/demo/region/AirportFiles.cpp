#include "demo/region/AirportFiles.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/GreatCircle.h"
#include "demo/region/NavigationPlans.h"
#include "demo/region/Text.h"

namespace skyvane::demo {

namespace {

struct FrequencyPlan {
    const char* ident;
    const char* type;
    const char* description;
    const char* megahertz;
};

constexpr FrequencyPlan frequencyPlans[] = {
    {"XSKV", "ATIS", "Skyvane ATIS", "126.425"},
    {"XSKV", "TWR", "Skyvane Tower", "118.105"},
    {"XSKV", "GND", "Skyvane Ground", "121.805"},
    {"XSKV", "APP", "Skyvane Approach", "119.455"},
    {"XSKV", "ILS", "ILS/DME RWY ", "110.3"},
    {"XSNC", "TWR", "Northcape Tower", "120.555"},
    {"XSNC", "AFIS", "Northcape Information", "120.555"},
    {"XSWH", "TWR", "Westhaven Tower", "122.105"},
    {"XSTM", "A/G", "Thornmoor Gliding", "130.205"},
    {"XSCP", "CTAF", "Corrie Traffic", "130.005"},
    {"XSFI", "CTAF", "Flint Traffic", "123.505"},
    {"XSSD", "CTAF", "Sandmere Traffic", "123.455"},
    {"XSGL", "CTAF", "Grey Lake Water", "129.905"},
};

/// Joins the values of a record; text comes with its quotes.
std::string record(std::initializer_list<std::string> values) {
    std::string line;
    for (const std::string& value : values)
        line += (line.empty() ? "" : ",") + value;
    return line + "\n";
}

std::string quoted(const std::string& text) {
    return '"' + text + '"';
}

constexpr int firstAirportId = 9900001;

/// How exactly an airport is known: those with a hard runway are surveyed, of the others nobody tells.
std::string accuracyOf(const AirportPlan& plan) {
    const std::string surface = plan.surface;
    return surface == "ASP" || surface == "CON" ? "3" : "";
}

// The spot of a navaid: 700 m before the runway's first end and 350 m beside, or where the plan says.
Spot navaidSpot(const Sites& sites, const NavaidPlan& plan) {
    if (!plan.atIdent)
        return plan.place * 1000.0;
    const Airport& airport = sites.airport(plan.atIdent);
    const Spot along = (airport.to - airport.from) * (1.0 / distance(airport.from, airport.to));
    return airport.from - along * 700.0 - rightOf(along) * 350.0;
}

/// The DME channel that is paired with a VOR's frequency of 112.30 MHz or more.
std::string dmeChannel(int kilohertz) {
    const int steps = (kilohertz - 112300) / 50;
    return std::to_string(70 + steps / 2) + (steps % 2 == 0 ? "X" : "Y");
}

} // namespace

std::string writeAirports(const Sites& sites) {
    std::string text = "\"id\",\"ident\",\"type\",\"name\",\"latitude_deg\",\"longitude_deg\",\"elevation_ft\","
                       "\"continent\",\"iso_country\",\"iso_region\",\"municipality\",\"scheduled_service\","
                       "\"icao_code\",\"iata_code\",\"gps_code\",\"local_code\",\"home_link\",\"wikipedia_link\","
                       "\"keywords\",\"accuracy\"\n";
    int id = firstAirportId;
    for (const Airport& airport : sites.airports) {
        const AirportPlan& plan = *airport.plan;
        const ChartPosition position = RegionPlane::toPosition(airport.middle());
        const bool isLarge = plan.type == std::string("large_airport");
        text += record({std::to_string(id++),
                        quoted(plan.ident),
                        quoted(plan.type),
                        quoted(fictional(plan.name)),
                        fixed(position.latitude, 6),
                        fixed(position.longitude, 6),
                        feet(airport.elevationMetres()),
                        "\"EU\"",
                        "\"XS\"",
                        "\"XS-1\"",
                        quoted(fictional(plan.town)),
                        isLarge ? "\"yes\"" : "\"no\"",
                        "",
                        "",
                        quoted(plan.ident),
                        quoted(plan.ident),
                        "",
                        "",
                        "\"fictional, not for navigation\"",
                        accuracyOf(plan)});
    }
    return text;
}

std::string writeRunways(const Sites& sites) {
    std::string text =
        "\"id\",\"airport_ref\",\"airport_ident\",\"length_ft\",\"width_ft\",\"surface\",\"lighted\","
        "\"closed\",\"le_ident\",\"le_latitude_deg\",\"le_longitude_deg\",\"le_elevation_ft\","
        "\"le_heading_degT\",\"le_displaced_threshold_ft\",\"he_ident\",\"he_latitude_deg\","
        "\"he_longitude_deg\",\"he_elevation_ft\",\"he_heading_degT\",\"he_displaced_threshold_ft\",\"accuracy\"\n";
    int id = firstAirportId;
    for (const Airport& airport : sites.airports) {
        const AirportPlan& plan = *airport.plan;
        const int airportId = id++;
        if (!airport.hasRunway())
            continue;
        const ChartPosition from = RegionPlane::toPosition(airport.from);
        const ChartPosition to = RegionPlane::toPosition(airport.to);
        const bool isClosed = plan.type == std::string("closed");
        text += record({std::to_string(airportId),
                        std::to_string(airportId),
                        quoted(plan.ident),
                        std::to_string(plan.lengthFeet),
                        std::to_string(plan.widthFeet),
                        quoted(plan.surface),
                        plan.isLighted ? "1" : "0",
                        isClosed ? "1" : "0",
                        quoted(airport.endName(true)),
                        fixed(from.latitude, 6),
                        fixed(from.longitude, 6),
                        feet(airport.fromMetres),
                        fixed(airport.headingTrueDegrees, 1),
                        "",
                        quoted(airport.endName(false)),
                        fixed(to.latitude, 6),
                        fixed(to.longitude, 6),
                        feet(airport.toMetres),
                        fixed(Angle0to360(airport.headingTrueDegrees + 180.0), 1),
                        "",
                        accuracyOf(plan)});
    }
    return text;
}

std::string writeFrequencies(const Sites& sites) {
    std::string text = "\"id\",\"airport_ref\",\"airport_ident\",\"type\",\"description\",\"frequency_mhz\"\n";
    int id = firstAirportId;
    for (const FrequencyPlan& plan : frequencyPlans) {
        int airportId = firstAirportId;
        for (const Airport& airport : sites.airports) {
            if (airport.plan->ident == std::string(plan.ident))
                break;
            ++airportId;
        }
        std::string description = plan.description;
        if (plan.type == std::string("ILS"))
            description = "ILS/DME RWY " + sites.airport(plan.ident).endName(false);
        text += record({std::to_string(id++), std::to_string(airportId), quoted(plan.ident), quoted(plan.type),
                        quoted(description), plan.megahertz});
    }
    return text;
}

std::string writeNavaids(const Landscape& landscape, const Sites& sites) {
    std::string text = "\"id\",\"filename\",\"ident\",\"name\",\"type\",\"frequency_khz\",\"latitude_deg\","
                       "\"longitude_deg\",\"elevation_ft\",\"iso_country\",\"dme_frequency_khz\",\"dme_channel\","
                       "\"dme_latitude_deg\",\"dme_longitude_deg\",\"dme_elevation_ft\",\"slaved_variation_deg\","
                       "\"magnetic_variation_deg\",\"usageType\",\"power\",\"associated_airport\"\n";
    int id = firstAirportId;
    for (const NavaidPlan& plan : navaidPlans) {
        const Spot spot = navaidSpot(sites, plan);
        const ChartPosition position = RegionPlane::toPosition(spot);
        const std::string variation = fixed(AngleDiff(calcTrueHeading(position, 0.0), 0.0), 1);
        const bool isNdb = plan.type == std::string("NDB");
        text += record({std::to_string(id++),
                        quoted(std::string(plan.name) + "_XS"),
                        quoted(plan.ident),
                        quoted(fictional(plan.name)),
                        quoted(plan.type),
                        std::to_string(plan.kilohertz),
                        fixed(position.latitude, 6),
                        fixed(position.longitude, 6),
                        feet(landscape.height(spot)),
                        "\"XS\"",
                        isNdb ? "" : std::to_string(plan.kilohertz),
                        isNdb ? "" : quoted(dmeChannel(plan.kilohertz)),
                        "",
                        "",
                        "",
                        variation,
                        variation,
                        isNdb ? "\"LO\"" : "\"BOTH\"",
                        "\"HIGH\"",
                        plan.atIdent ? quoted(plan.atIdent) : ""});
    }
    return text;
}

} // namespace skyvane::demo
