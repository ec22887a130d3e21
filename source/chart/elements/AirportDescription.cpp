#include "chart/elements/AirportElement.h"
#include "chart/elements/AltitudeCodes.h"
#include "chart/elements/HypertextPage.h"
#include "core/text/Numbers.h"

#include <algorithm>
#include <limits>

namespace skyvane {

namespace {

constexpr int goodAccuracy = 3;

std::string kindOf(const AirportElement& airport) {
    return std::string(airport.isPrivate ? "private " : "") +
           (airport.isTowered ? "towered " : "uncontrolled (or no known tower) ") +
           (airport.isMilitary ? "military " : "") + (airport.isClosed ? "closed " : "") +
           (airport.isHeliport ? "heliport" : "airport") +
           (airport.hasGliders ? " (special e.g. glider/ultralight activities)" : "");
}

std::string measure(uint32_t feet, bool metric) {
    if (feet < 1)
        return "unknown";
    constexpr uint32_t most = std::numeric_limits<int32_t>::max();
    return toText(displayedAltitude(static_cast<int32_t>(std::min(feet, most)), metric));
}

std::string surfaceOf(const Runway& runway) {
    constexpr const char* names[] = {"solid", "cracked", "grass", "water", "unknown surface"};
    return names[std::min<uint32_t>(runway.surface, Runway::UnknownSurface)];
}

std::string patternOf(const RunwayEnd& end) {
    constexpr const char* names[] = {"right", "left", "unknown"};
    return names[std::min<uint32_t>(end.trafficPattern, Runway::UnknownPattern)];
}

std::string trafficPattern(const AirportElement& airport, const Runway& runway) {
    const bool isAltitudeKnown = airport.trafficPatternFeet >= 0;
    const bool isSideKnown = std::any_of(runway.ends.begin(), runway.ends.end(), [](const RunwayEnd& end) {
        return end.trafficPattern < Runway::UnknownPattern;
    });
    if (!isAltitudeKnown && !isSideKnown)
        return {};
    std::string text = "Traffic pattern: ";
    if (isAltitudeKnown)
        text += toText(airport.trafficPatternFeet) + " feet; ";
    if (isSideKnown)
        text += "RWY " + runway.getEndLabel(0) + ": " + patternOf(runway.ends[0]) + ", RWY " + runway.getEndLabel(1) +
                ": " + patternOf(runway.ends[1]);
    return text;
}

void addRunway(HypertextPage& page, const AirportElement& airport, const Runway& runway, bool metric) {
    page.heading("RWY: " + runway.getEndLabel(0) + "-" + runway.getEndLabel(1));
    page.line(measure(runway.lengthFeet, metric) + " x " + measure(runway.widthFeet, metric) +
              (metric ? " m (" : " feet (") + surfaceOf(runway) + ")");
    page.line(runway.hasLights ? "Lights available" : "No known lights available");
    const std::string pattern = trafficPattern(airport, runway);
    if (!pattern.empty())
        page.line(pattern);
}

} // namespace

std::string AirportElement::createHTI(bool metric) const {
    HypertextPage page;
    page.line(kindOf(*this));
    if (accuracy < goodAccuracy) {
        constexpr const char* names[goodAccuracy] = {"Unknown", "Low", "Medium"};
        page.heading(std::string("Warning: ") + names[accuracy] + " accuracy.");
    }
    const std::string elevation = toText(displayedAltitude(elevationFeet, metric)) + (metric ? " m" : " feet");
    page.heading("Elevation: " + (elevationFeet == UnknownElevation ? "-" : elevation));
    for (const Runway& runway : runways)
        addRunway(page, *this, runway, metric);
    if (!fuel.empty())
        page.heading("Fuel: " + fuel);
    page.remarks("Remarks:", remarks);
    return page.text();
}

} // namespace skyvane
