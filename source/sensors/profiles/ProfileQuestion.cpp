#include "sensors/profiles/ProfileQuestion.h"

#include "core/text/Numbers.h"
#include "sensors/SensorConfig.h"

#include <cstdlib>

namespace skyvane {

bool asksForProfile(IniFile& config) {
    const bool byDocument = readNumber(config, "", "chooseProfile", 1) != 0;
    const char* environment = std::getenv("SKYVANE_CHOOSE_PROFILE");
    return environment ? toBool(environment, byDocument) : byDocument;
}

} // namespace skyvane
