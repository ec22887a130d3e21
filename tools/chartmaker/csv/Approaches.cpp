#include "chartmaker/csv/Approaches.h"

#include "chartmaker/text/SourceText.h"

#include <algorithm>
#include <regex>

namespace skyvane {
namespace {

/// "27L" of 027L and 27L.
std::string withoutZeros(const std::string& label) {
    return label.substr(std::min(label.find_first_not_of('0'), label.size()));
}

RunwayEnd* findEnd(AirportElement& airport, const std::string& label) {
    for (Runway& runway : airport.runways)
        for (size_t end = 0; end < runway.ends.size(); ++end)
            if (withoutZeros(upperCase(runway.getEndLabel(end))) == withoutZeros(label))
                return &runway.ends[end];
    return nullptr;
}

bool isLocalizer(const Frequency& frequency) {
    return frequency.megahertz >= 108 && frequency.megahertz < 112;
}

} // namespace

void joinApproaches(AirportElement& airport) {
    static const std::regex form("((?:ILS|LOC)[A-Z/]*)[ -]*(?:RWY|RW|RUNWAY)? ?([0-9]{1,2}[LRC]?)");
    for (auto it = airport.frequencies.begin(); it != airport.frequencies.end();) {
        const auto service = it++;
        const std::string text = upperCase(service->first);
        std::smatch match;
        if (text.size() > 40 || !std::regex_match(text, match, form) ||
            !std::all_of(service->second.begin(), service->second.end(), isLocalizer))
            continue;
        RunwayEnd* end = findEnd(airport, match[2]);
        if (!end)
            continue;
        for (const Frequency& frequency : service->second)
            end->approaches.push_back({match[1], frequency});
        airport.frequencies.erase(service);
    }
}

} // namespace skyvane
