#pragma once

#include <optional>
#include <string_view>

namespace skyvane {

/// UTC.
struct NmeaTime {
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
};

/// "hhmmss" and decimals of the second, of which three count. None for a shorter text, or when it is no time of a day.
std::optional<NmeaTime> readNmeaTime(std::string_view text);

/// "ddmm.mmm" with "N" or "S", "dddmm.mmm" with "E" or "W", in degrees, south and west negative. None for a value of
/// fewer than four characters, another hemisphere, and what isn't on the earth.
std::optional<double> readNmeaLatitude(std::string_view value, std::string_view hemisphere);
std::optional<double> readNmeaLongitude(std::string_view value, std::string_view hemisphere);

} // namespace skyvane
