#include "displays/visionmath/bars/PfdFormat.h"

#include "chart/geodesy/Angles.h"
#include "core/text/Numbers.h"
#include "displays/gauges/Needles.h"
#include "displays/gauges/SegmentFormat.h"
#include "displays/visionmath/bars/SpeedSource.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double inchesPerMillibar = 1.0 / 33.86389, kilometresPerNauticalMile = 1852.0 / 1000.0;

/// Rounded first: the text of a double with all its digits would be long enough to allocate.
ShortText& appendFixed(ShortText& text, double value, int decimals) {
    const double scale = std::pow(10.0, decimals);
    return text.append(std::string_view(toFixedText(std::round(value * scale) / scale, decimals)));
}

ShortText withSign(double value, int decimals) {
    ShortText text;
    if (std::round(value * std::pow(10.0, decimals)) > 0.0)
        text.append(L"+");
    return appendFixed(text, value, decimals);
}

} // namespace

ShortText formatGroundSpeedLine(double knots, DialFlag flag, bool metric) {
    ShortText text(metric ? L"GS km/h: " : L"GS kts: ");
    if (!isValueShown(flag))
        return text.append(L"---");
    return text.append(formatWhole(toSpeedUnit(knots, metric)).view());
}

ShortText formatAboveGroundLine(double metres, bool isKnown, bool metric) {
    ShortText text(L"AGL: ");
    if (!isKnown || !std::isfinite(metres))
        return text.append(notAvailable);
    const double height = metric ? 3.0 * std::round(metres / 3.0) : 10.0 * std::round(metres / metresPerFoot / 10.0);
    return text.append(formatWhole(height).view()).append(metric ? L" m" : L" ft");
}

ShortText formatQnhLine(double millibars) {
    return ShortText(L"QNH / ").append(formatWhole(millibars).view()).append(L" hPa");
}

ShortText formatInchesLine(double millibars) {
    ShortText text;
    return appendFixed(text, millibars * inchesPerMillibar, 2).append(L" inHg");
}

ShortText formatVerticalSpeed(double metresPerSecond, bool metric) {
    if (metric)
        return withSign(metresPerSecond, 1);
    return withSign(10.0 * std::round(toFeetPerMinute(metresPerSecond) / 10.0), 0);
}

ShortText formatVerticalMark(double mark, bool metric) {
    ShortText text;
    return appendFixed(text, mark, metric ? 1 : 0);
}

ShortText formatDirection(double degrees) {
    const int whole = roundHalfAway(Angle0to360(degrees));
    const int shown = whole == 0 ? 360 : whole;
    const wchar_t digits[] = {static_cast<wchar_t>(L'0' + shown / 100), static_cast<wchar_t>(L'0' + shown / 10 % 10),
                              static_cast<wchar_t>(L'0' + shown % 10), L'\0'};
    return ShortText(digits);
}

ShortText formatFixDistance(double nauticalMiles, bool metric) {
    const double distance = metric ? nauticalMiles * kilometresPerNauticalMile : nauticalMiles;
    ShortText text;
    return appendFixed(text, distance, distance < 99.95 ? 1 : 0).append(metric ? L" km" : L" NM");
}

double calcLowShade(double feet) {
    return std::clamp((feet - 400.0) * -1.275 / 255.0, 0.0, 1.0);
}

} // namespace skyvane
