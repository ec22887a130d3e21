#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace skyvane {

/// A floor or ceiling as airspace files write it.
struct AirspaceLimit {
    enum Kind { Surface, Unlimited, Altitude, FlightLevel };

    Kind kind = Altitude;
    int32_t feet = 0; ///< Of an altitude; of a flight level, above 1013.25 hPa.
    bool isMsl = true;
};

/// "SFC", "GND", "UNL", "FL 95", "2500", "2500ft MSL", "450m AGL", "ALT 3000 ft" and the like, in any case and with or
/// without blanks. Nothing for what isn't wholly understood ("Ask on 122.8").
std::optional<AirspaceLimit> parseAirspaceLimit(std::string_view text);

} // namespace skyvane
