#include "core/system/OpenUrl.h"

#include "chart/geodesy/ChartPosition.h"
#include "core/text/Numbers.h"

namespace skyvane {
namespace {

/// Signs that mean something to the shell between double quotes, controls, and blanks.
bool mustBeCoded(unsigned char sign) {
    return sign <= 0x20 || sign == 0x7f || sign == '"' || sign == '$' || sign == '`' || sign == '\\' || sign == '!';
}

} // namespace

std::string openUrlCommand(const std::string& url) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string safe;
    // A URL that begins like an option must not become one.
    const std::size_t begin = url.find_first_not_of('-');
    for (std::size_t i = begin == std::string::npos ? url.size() : begin; i < url.size(); ++i) {
        const unsigned char sign = static_cast<unsigned char>(url[i]);
        if (mustBeCoded(sign))
            safe += {'%', digits[sign >> 4], digits[sign & 15]};
        else
            safe += url[i];
    }
    return "xdg-open \"" + safe + "\" &";
}

std::string mapUrl(const ChartPosition& position) {
    const std::string place = toText(position.latitude) + "," + toText(position.longitude);
    return "https://www.google.com/maps/place/" + place + "/@" + place + ",14z";
}

} // namespace skyvane
