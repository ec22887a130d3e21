#include "displays/mapmath/elements/AirspaceStyles.h"

#include "chart/elements/AirspaceElement.h"
#include "chart/elements/AltitudeCodes.h"
#include "core/text/Numbers.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr AirspaceStyle plainStyle = {"", 0xffffffff, 1.0f, 1.0f, 480};

constexpr AirspaceStyle styles[] = {
    {"Border", 0xff000000, 1.0f, 0.5f, 410}, {"AMA", 0xff906b00, 0.9f, 1.0f, 415},
    {"FIR", 0xff00ffff, 1.0f, 1.0f, 420},    {"UIR", 0xff00ffff, 1.0f, 1.0f, 420},
    {"E", 0xc4404040, 0.9f, 1.0f, 425},      {"DO", 0xc4404040, 0.9f, 1.0f, 425},
    {"O", 0xc4404040, 0.9f, 1.0f, 425},      {"OTHER", 0xc4404040, 0.9f, 1.0f, 425},
    {"CBA", 0xc4404040, 0.9f, 1.0f, 425},    {"F", 0xff004080, 0.9f, 1.0f, 430},
    {"G", 0xff004080, 0.9f, 1.0f, 430},      {"UTA", 0xffe0b400, 1.0f, 1.0f, 440},
    {"OCA", 0xffe0b400, 1.0f, 1.0f, 440},    {"TMA", 0xffe0b400, 1.0f, 1.0f, 445},
    {"TSA", 0xffe0b400, 1.0f, 1.0f, 445},    {"CTA", 0xff00c602, 1.25f, 1.0f, 450},
    {"AWY", 0xffe1e100, 1.0f, 2.5f, 455},    {"RAS", 0xc400a5a5, 1.0f, 1.0f, 460},
    {"TRA", 0xffc0c0c0, 1.0f, 0.5f, 465},    {"PROTECT", 0xffc0c0c0, 1.0f, 0.5f, 465},
    {"TP", 0xffaaaaaa, 1.25f, 1.0f, 470},    {"D", 0xff8ac6ff, 1.5f, 1.0f, 500},
    {"A", 0xff339bff, 1.25f, 1.0f, 510},     {"B", 0xff339bff, 1.25f, 1.0f, 510},
    {"C", 0xfff700f7, 1.25f, 1.0f, 520},     {"CTR", 0xfff700f7, 1.25f, 1.0f, 530},
    {"WA", 0xffffff00, 1.5f, 1.5f, 540},     {"AA", 0xffffff00, 1.5f, 1.5f, 540},
    {"MOA", 0xffff00ff, 1.5f, 1.5f, 550},    {"ADIZ", 0xffff00ff, 1.5f, 1.5f, 550},
    {"NSA", 0xffef00b6, 2.14f, 0.5f, 560},   {"RA", 0xffff3c3c, 1.5f, 1.5f, 570},
    {"PA", 0xffff3c3c, 1.5f, 1.5f, 580},
};

constexpr int largestRadiusKilometres = 100;
constexpr int highestFloorFeet = 40000;
constexpr int feetPerPoint = 400;

std::string limitText(int32_t feet, bool isMsl, bool metric) {
    return toText(displayedAltitude(feet, metric)) + (isMsl ? "" : " AGL");
}

} // namespace

const AirspaceStyle& airspaceStyle(const std::string& airspaceClass) {
    const auto* found = std::find_if(std::begin(styles), std::end(styles),
                                     [&](const AirspaceStyle& style) { return airspaceClass == style.airspaceClass; });
    return found == std::end(styles) ? plainStyle : *found;
}

uint32_t darkened(uint32_t argb) {
    const auto part = [argb](int shift) { return ((argb >> shift & 0xff) * 2 / 5) << shift; };
    return 0xff000000 | part(16) | part(8) | part(0);
}

int airspaceSelectPriority(const std::string& airspaceClass, double areaSquareMetres, int floorFeet) {
    const double radius = std::sqrt(std::max(0.0, areaSquareMetres) / 1e6);
    const int letter = airspaceClass.empty() ? 0 : std::clamp(airspaceClass[0] - 'A', 0, 10);
    const int floor = std::max(0, std::min(highestFloorFeet, floorFeet));
    const int detail = 100 - floor / feetPerPoint + letter;
    if (!(radius <= largestRadiusKilometres))
        return detail;
    return (100000 - roundHalfAway(radius * 1000.0)) / 1000 * 1000 + detail;
}

std::string airspaceLimits(const AirspaceElement& airspace, bool metric) {
    const std::string top =
        airspace.topFeet == AirspaceElement::Unlimited ? "UNL" : limitText(airspace.topFeet, airspace.isTopMsl, metric);
    if (airspace.airspaceClass == AirspaceElement::TrafficPatternClass)
        return airspace.topFeet == 0 ? std::string() : top;
    const bool isSurface =
        airspace.bottomFeet == AirspaceElement::Unlimited || (airspace.bottomFeet == 0 && !airspace.isBottomMsl);
    return (isSurface ? "SFC" : limitText(airspace.bottomFeet, airspace.isBottomMsl, metric)) + " - " + top;
}

} // namespace skyvane
