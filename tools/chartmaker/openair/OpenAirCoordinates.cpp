#include "chartmaker/openair/OpenAirCoordinates.h"

#include "chartmaker/text/SourceText.h"

#include <algorithm>

namespace skyvane {
namespace {

void skipAll(std::string_view& text, std::string_view characters) {
    text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
}

/// One of two letters at the front, in either case: 1 or -1, 0 for neither.
int takeHemisphere(std::string_view& text, char positive, char negative) {
    const char first = text.empty() ? '\0' : static_cast<char>(text[0] & ~0x20);
    const int sign = first == positive ? 1 : first == negative ? -1 : 0;
    text.remove_prefix(sign != 0 ? 1 : 0);
    return sign;
}

/// Degrees, minutes and seconds and their hemisphere.
std::optional<double> takeAngle(std::string_view& text, char positive, char negative, double most) {
    constexpr size_t parts = 3;
    const double limits[parts] = {most, 60.0, 60.0};
    double degrees = 0.0, unit = 1.0;
    int sign = 0;
    for (size_t part = 0; sign == 0; ++part) {
        const size_t length = std::min(text.find_first_not_of("0123456789."), text.size());
        const auto number = readNumber(text.substr(0, length), 0.0, part < parts ? limits[part] : -1.0);
        if (!number)
            return std::nullopt;
        degrees += *number * unit;
        unit /= 60.0;
        text.remove_prefix(length);
        skipAll(text, " \t:");
        sign = takeHemisphere(text, positive, negative);
    }
    return degrees > most ? std::nullopt : std::optional<double>(sign * degrees);
}

} // namespace

std::optional<ChartPosition> takeCoordinates(std::string_view& text) {
    std::string_view rest = trimmed(text);
    const auto latitude = takeAngle(rest, 'N', 'S', 90.0);
    skipAll(rest, " \t,");
    const auto longitude = latitude ? takeAngle(rest, 'E', 'W', 180.0) : std::nullopt;
    if (!longitude)
        return std::nullopt;
    text = rest;
    return ChartPosition(*longitude, *latitude);
}

} // namespace skyvane
