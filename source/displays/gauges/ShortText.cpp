#include "displays/gauges/ShortText.h"

#include "core/text/Numbers.h"

#include <cmath>

namespace skyvane {

ShortText formatTurnRate(double degreesPerSecond) {
    return formatLoad(degreesPerSecond).append(L" \u00B0/s");
}

ShortText formatLoad(double load) {
    // Rounded first: the text of a double with all its digits would be long enough to allocate.
    return ShortText().append(std::string_view(toFixedText(std::round(load * 10.0) / 10.0, 1)));
}

} // namespace skyvane
