#include "displays/gauges/ShortText.h"

#include "core/text/Numbers.h"

namespace skyvane {

ShortText formatTurnRate(double degreesPerSecond) {
    return formatLoad(degreesPerSecond).append(L" \u00B0/s");
}

ShortText formatLoad(double load) {
    return ShortText().append(std::string_view(toFixedText(load, 1)));
}

} // namespace skyvane
