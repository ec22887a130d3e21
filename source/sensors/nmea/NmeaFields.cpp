#include "sensors/nmea/NmeaFields.h"

#include "core/text/Numbers.h"

#include <algorithm>

namespace skyvane {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// A run of digits as a number; 0 when there is anything else in it.
int digits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), isDigit) ? toInt(text) : 0;
}

int milliseconds(std::string_view decimals) {
    int value = 0;
    for (size_t i = 0; i < 3; ++i)
        value = value * 10 + (i < decimals.size() && isDigit(decimals[i]) ? decimals[i] - '0' : 0);
    return value;
}

std::optional<double> readAngle(std::string_view value, size_t degreeDigits, double most) {
    constexpr size_t shortest = 4;
    if (value.size() < std::max(shortest, degreeDigits))
        return std::nullopt;
    const std::string_view degrees = value.substr(0, degreeDigits);
    const std::string_view minutes = value.substr(degreeDigits);
    if (!std::all_of(degrees.begin(), degrees.end(), isDigit) || (!minutes.empty() && !isDigit(minutes.front())))
        return std::nullopt;
    const double minute = toDouble(minutes);
    const double angle = toInt(degrees) + minute / 60.0;
    if (minute >= 60.0 || angle > most)
        return std::nullopt;
    return angle;
}

std::optional<double> signedAngle(std::optional<double> angle, std::string_view hemisphere, std::string_view positive,
                                  std::string_view negative) {
    if (!angle || (hemisphere != positive && hemisphere != negative))
        return std::nullopt;
    return hemisphere == negative ? -*angle : *angle;
}

} // namespace

std::optional<NmeaTime> readNmeaTime(std::string_view text) {
    constexpr size_t shortest = 6;
    if (text.size() < shortest)
        return std::nullopt;
    NmeaTime time;
    time.hour = digits(text.substr(0, 2));
    time.minute = digits(text.substr(2, 2));
    time.second = digits(text.substr(4, 2));
    const size_t point = text.find('.');
    if (point != std::string_view::npos)
        time.millisecond = milliseconds(text.substr(point + 1));
    // A minute may have a leap second.
    if (time.hour > 23 || time.minute > 59 || time.second > 60)
        return std::nullopt;
    return time;
}

std::optional<double> readNmeaLatitude(std::string_view value, std::string_view hemisphere) {
    return signedAngle(readAngle(value, 2, 90.0), hemisphere, "N", "S");
}

std::optional<double> readNmeaLongitude(std::string_view value, std::string_view hemisphere) {
    return signedAngle(readAngle(value, 3, 180.0), hemisphere, "E", "W");
}

} // namespace skyvane
