#include "displays/glide/GlideFormat.h"

#include "core/text/Numbers.h"
#include "displays/gauges/Needles.h"
#include "displays/gauges/SegmentFormat.h"

#include <cmath>
#include <string>

namespace skyvane {

namespace {

constexpr double kilometresPerNauticalMile = 1.852;
constexpr double largestRatio = 9999.0; ///< Beyond it the flight is level.
constexpr double largestEnteredRatio = 999.0;
constexpr size_t longestName = 24;

bool isFeet(GlideUnits units) {
    return units == GlideUnits::Nautical;
}

/// Rounded first: the text of a double with all its digits would be long enough to allocate.
ShortText oneDecimal(double value) {
    if (!(std::abs(value) < 1e9))
        return notAvailable;
    return ShortText().append(std::string_view(toFixedText(std::round(value * 10.0) / 10.0, 1)));
}

ShortText withUnit(ShortText number, const wchar_t* gap, const wchar_t* unit) {
    if (number == ShortText(notAvailable))
        return number;
    return number.append(gap).append(unit);
}

/// A decimal as long as it says something.
ShortText ratioText(double ratio) {
    return std::abs(ratio) < 9.95 ? oneDecimal(ratio) : formatWhole(ratio);
}

bool isTrimmed(wchar_t letter) {
    return letter == L' ' || letter == L'\t' || letter == L'\n' || letter == L'\r';
}

std::wstring_view trimmed(std::wstring_view text) {
    while (!text.empty() && isTrimmed(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isTrimmed(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace

GlideUnits parseGlideUnits(std::string_view text) {
    return text == "km|m|m/s" ? GlideUnits::Metric : GlideUnits::Nautical;
}

std::optional<double> parseInverseGlideRatio(std::wstring_view text) {
    text = trimmed(text);
    if (const size_t colon = text.find(L':'); colon != text.npos) {
        if (trimmed(text.substr(0, colon)) != L"1")
            return {};
        text = trimmed(text.substr(colon + 1));
    }
    std::string number;
    int points = 0;
    for (const wchar_t letter : text) {
        const bool isPoint = letter == L'.' || letter == L',';
        if (!isPoint && (letter < L'0' || letter > L'9'))
            return {};
        points += isPoint ? 1 : 0;
        number += isPoint ? '.' : static_cast<char>(letter);
    }
    const double ratio = points <= 1 && number.size() > static_cast<size_t>(points) ? toDouble(number, -1.0) : -1.0;
    return ratio >= 0.0 && ratio <= largestEnteredRatio ? std::optional<double>(ratio) : std::nullopt;
}

std::wstring formatRatio(double inverseGlideRatio) {
    const std::string text = inverseGlideRatio == std::floor(inverseGlideRatio) ? toFixedText(inverseGlideRatio, 1)
                                                                                : toText(inverseGlideRatio);
    return {text.begin(), text.end()};
}

ShortText formatGlideDistance(const GlideNumber& nauticalMiles, GlideUnits units, const wchar_t* gap) {
    if (!nauticalMiles.known)
        return notAvailable;
    const double value = nauticalMiles.value * (isFeet(units) ? 1.0 : kilometresPerNauticalMile);
    return withUnit(oneDecimal(value), gap, isFeet(units) ? L"NM" : L"km");
}

ShortText formatGlideAltitude(const GlideNumber& metres, GlideUnits units, const wchar_t* gap) {
    return metres.known ? withUnit(formatAltitude(metres.value, !isFeet(units)), gap, isFeet(units) ? L"feet" : L"m")
                        : notAvailable;
}

ShortText formatGlideVerticalSpeed(const GlideNumber& metresPerSecond, GlideUnits units, const wchar_t* gap) {
    if (!metresPerSecond.known)
        return notAvailable;
    return isFeet(units) ? withUnit(formatWhole(toFeetPerMinute(metresPerSecond.value)), gap, L"feet/min")
                         : withUnit(oneDecimal(metresPerSecond.value), gap, L"m/s");
}

ShortText formatGlideSpeed(int knots, GlideUnits units, const wchar_t* gap) {
    if (knots < 0)
        return notAvailable;
    return withUnit(formatWhole(isFeet(units) ? knots : knots * kilometresPerNauticalMile), gap,
                    isFeet(units) ? L"knots" : L"km/h");
}

ShortText formatGradient(double gradient) {
    if (gradient == noGradient || !(std::abs(gradient) >= 1.0 / largestRatio))
        return notAvailable;
    return ShortText(gradient < 0.0 ? L"-1 : " : L"1 : ").append(ratioText(1.0 / std::abs(gradient)).view());
}

ShortText calcAltAboveString(bool valid, GlideUnits units, double metres) {
    constexpr double lowest = -999000.0;
    return valid && metres >= lowest ? formatAltitude(metres, !isFeet(units)) : notAvailable;
}

ShortText formatTableTitle(const ShortText& name, GlideUnits units, const wchar_t* gap) {
    ShortText text(L"Altitude above destination");
    text.append(gap);
    const std::wstring_view whole = name.view();
    if (whole.size() <= longestName)
        text.append(whole.empty() ? std::wstring_view(L"-") : whole);
    else
        text.append(whole.substr(0, longestName - 3)).append(L"...");
    return text.append(isFeet(units) ? L" (feet)" : L" (m)");
}

ShortText formatGlideRatio(const GlideNumber& ratio) {
    return ratio.known && std::abs(ratio.value) <= largestRatio ? ShortText(L"1:").append(ratioText(ratio.value).view())
                                                                : notAvailable;
}

ShortText formatArrivalAltitude(const GlideNumber& metres, bool metric, const wchar_t* gap) {
    if (!metres.known)
        return notAvailable;
    const ShortText number = formatAltitude(metres.value, metric);
    ShortText text(number.view().front() == L'-' || number == ShortText(notAvailable) ? L"" : L"+");
    return withUnit(text.append(number.view()), gap, metric ? L"m MSL" : L"ft MSL");
}

ShortText formatAverageVerticalSpeed(const GlideNumber& metresPerSecond, bool metric, const wchar_t* gap) {
    if (!metresPerSecond.known)
        return notAvailable;
    return metric ? withUnit(oneDecimal(metresPerSecond.value), gap, L"m/s")
                  : withUnit(formatWhole(toFeetPerMinute(metresPerSecond.value)), gap, L"ft/min");
}

} // namespace skyvane
