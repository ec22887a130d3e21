#include "chart/elements/AirspaceElement.h"
#include "chart/elements/AltitudeCodes.h"
#include "chart/elements/HypertextPage.h"
#include "core/text/Numbers.h"

#include <map>

extern "C" const char skyvane_airspace_classes[];

namespace skyvane {

namespace {

// Lines of a code, a tab and what it means; "\n" in there begins a new line.
std::map<std::string, std::string> readClassDescriptions() {
    std::map<std::string, std::string> descriptions;
    std::string line;
    for (const char* c = skyvane_airspace_classes; *c; ++c) {
        if (*c == '\\' && c[1] == 'n') {
            line += '\n';
            ++c;
        } else if (*c == '\n') {
            const size_t tab = line.find('\t');
            if (tab != std::string::npos)
                descriptions[line.substr(0, tab)] = line.substr(tab + 1);
            line.clear();
        } else
            line += *c;
    }
    return descriptions;
}

std::string altitude(int32_t feet, bool isMsl, bool metric) {
    return toText(displayedAltitude(feet, metric)) + (isMsl ? " MSL" : " AGL");
}

} // namespace

std::string AirspaceElement::getClassDescription(const std::string& code) {
    static const std::map<std::string, std::string> descriptions = readClassDescriptions();
    const auto found = descriptions.find(code);
    return found == descriptions.end() ? std::string() : found->second;
}

std::string AirspaceElement::getIndicatedLabel(bool full, bool metric) const {
    const bool isPattern = airspaceClass == TrafficPatternClass;
    if (!full)
        return isPattern ? airspaceClass : "Class " + airspaceClass;
    if (isPattern)
        return "Traffic Pattern" + (topFeet == 0 ? "" : "\n" + altitude(topFeet, isTopMsl, metric));
    const bool isSurface = bottomFeet == Unlimited || (bottomFeet == 0 && !isBottomMsl);
    return (excludes ? "EXCLUDED from " : "") + ("Class: " + airspaceClass) + "\n[" +
           (isSurface ? "SFC" : altitude(bottomFeet, isBottomMsl, metric)) + " - " +
           (topFeet == Unlimited ? "UNL" : altitude(topFeet, isTopMsl, metric)) + "]" +
           (name.empty() ? "" : "\n" + name);
}

std::string AirspaceElement::createHTI(bool metric) const {
    HypertextPage page;
    if (airspaceClass == TrafficPatternClass) {
        page.line("Traffic Pattern" + (topFeet == 0 ? "" : ": " + altitude(topFeet, isTopMsl, metric)));
        page.remarks("Remarks:", remarks);
        return page.text();
    }
    page.line("Airspace " + getIndicatedLabel(true, metric));
    page.remarks("Remarks:", remarks);
    page.heading("Class description:");
    const std::string description = getClassDescription(airspaceClass);
    page.line(description.empty() ? "Class " + airspaceClass + " airspace:" : description);
    page.line("Please check the applicable laws and official publications to get detailed informations for a safe and "
              "lawful airspace usage.\n");
    return page.text();
}

} // namespace skyvane
