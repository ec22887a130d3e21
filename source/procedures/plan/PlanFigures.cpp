#include "procedures/plan/PlanFigures.h"

#include "chart/geodesy/EarthConstants.h"
#include "core/text/Numbers.h"

#include <cmath>
#include <cstdio>

namespace skyvane {
namespace {

constexpr double KilometresPerMile = MetresPerNauticalMile / 1000.0;
constexpr const char* Unknown = "n/A";
constexpr double FastestSpeed = 10000.0;
constexpr double LongestSeconds = 99.0 * 3600.0 + 3599.0;

double inUnit(double miles, bool metric) {
    return metric ? miles * KilometresPerMile : miles;
}

std::optional<double> milesOf(const IProcedure& procedure) {
    if (procedure.getCourseList().empty())
        return std::nullopt;
    return procedure.calcTotalLength();
}

/// Hours, minutes and seconds, as the value fields write a time needed.
std::string timeText(double seconds) {
    const int whole = roundHalfAway(seconds);
    char text[32];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", whole / 3600, whole / 60 % 60, whole % 60);
    return text;
}

} // namespace

PlanFigures measurePlan(const FlightPlan::Procedures& procedures, int current) {
    PlanFigures figures;
    if (procedures.empty())
        return figures;
    figures.totalMiles = 0.0;
    for (const auto& procedure : procedures) {
        const std::optional<double> miles = milesOf(*procedure);
        figures.totalMiles = miles && figures.totalMiles ? std::optional(*figures.totalMiles + *miles) : std::nullopt;
    }
    if (current >= 0 && current < static_cast<int>(procedures.size()))
        figures.currentMiles = milesOf(*procedures[static_cast<size_t>(current)]);
    return figures;
}

std::optional<double> readTypedSpeed(const std::string& text) {
    const double speed = toDouble(text);
    return speed > 0.0 && speed <= FastestSpeed ? std::optional(speed) : std::nullopt;
}

std::string totalDistanceText(const std::optional<double>& miles, bool metric) {
    if (!miles)
        return std::string("Total distance: ") + Unknown;
    return std::string("Total distance [") + (metric ? "km" : "NM") + "]: " + toFixedText(inUnit(*miles, metric), 1);
}

std::string flyingTimeText(const std::optional<double>& miles, const std::optional<double>& speed, bool metric) {
    const std::string unit = metric ? "km/h: " : "kts: ";
    if (!miles || !speed)
        return unit + Unknown;
    const double seconds = inUnit(*miles, metric) / *speed * 3600.0;
    return unit + (seconds <= LongestSeconds ? timeText(seconds) : Unknown);
}

std::string planLine(int index, IProcedure& procedure, bool metric) {
    const std::optional<double> miles = milesOf(procedure);
    return toText(index + 1) + "   " +
           (miles ? toFixedText(inUnit(*miles, metric), 1) + (metric ? " km   " : " NM   ") : std::string()) +
           procedure.getName();
}

} // namespace skyvane
