#include "chartmaker/openair/AirspaceClass.h"

#include <set>
#include <unordered_map>

namespace skyvane {

std::string airspaceClassOf(const std::string& openAirClass, const std::string& openAirType) {
    static const std::unordered_map<std::string, std::string> codes{
        {"R", "RA"},      {"P", "PA"},     {"Q", "DA"},       {"RESTRICTED", "RA"},     {"PROHIBITED", "PA"},
        {"DANGER", "DA"}, {"ALERT", "AA"}, {"WARNING", "WA"}, {"PROTECTED", "PROTECT"},
    };
    static const std::set<std::string> unclassified{"", "UNC", "UNCLASSIFIED", "UNKNOWN", "OTH", "OTHER", "NONE"};
    const std::string& chosen = unclassified.count(openAirClass) && !openAirType.empty() ? openAirType : openAirClass;
    const auto code = codes.find(chosen);
    return code == codes.end() ? chosen : code->second;
}

} // namespace skyvane
