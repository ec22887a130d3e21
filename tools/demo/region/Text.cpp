#include "demo/region/Text.h"

#include "chart/geodesy/EarthConstants.h"

#include <cmath>
#include <cstdio>

namespace skyvane::demo {

namespace {

std::string angleText(double degrees, const char* format, char positive, char negative) {
    const long seconds = std::lround(std::fabs(degrees) * 3600.0);
    char text[32];
    std::snprintf(text, sizeof text, format, seconds / 3600, seconds / 60 % 60, seconds % 60,
                  degrees < 0.0 ? negative : positive);
    return text;
}

} // namespace

std::string fixed(double value, int digits) {
    const double scale = std::pow(10.0, digits);
    const long long scaled = std::llround(std::fabs(value) * scale);
    std::string text = std::to_string(scaled);
    if (digits > 0) {
        const auto width = static_cast<size_t>(digits);
        if (text.size() <= width)
            text.insert(0, width + 1 - text.size(), '0');
        text.insert(text.size() - width, 1, '.');
    }
    return value < 0.0 && scaled > 0 ? "-" + text : text;
}

std::string feet(double metres) {
    return fixed(metres / MetresPerFoot, 0);
}

std::string degreesMinutesSeconds(const ChartPosition& position) {
    return angleText(position.latitude, "%02ld:%02ld:%02ld %c", 'N', 'S') + " " +
           angleText(position.longitude, "%03ld:%02ld:%02ld %c", 'E', 'W');
}

std::string fictional(const std::string& name) {
    return name + " (fictional)";
}

} // namespace skyvane::demo
