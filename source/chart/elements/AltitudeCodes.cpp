#include "chart/elements/AltitudeCodes.h"

#include "chart/geodesy/EarthConstants.h"
#include "core/text/Numbers.h"

namespace skyvane {

namespace {

constexpr double lowestMetres = -500.0;
constexpr double highestMetres = 9000.0;
constexpr double spanMetres = highestMetres - lowestMetres;

uint16_t encode(double metres, uint16_t highest) {
    if (metres > highestMetres)
        return highest;
    if (!(metres >= lowestMetres))
        return 0;
    return static_cast<uint16_t>(roundHalfAway((metres - lowestMetres) / spanMetres * highest));
}

} // namespace

uint16_t encode12BitAltitude(double metres) {
    return encode(metres, 0xfff);
}

double decode12BitAltitude(uint16_t code) {
    return (code & 0xfff) / 4095.0 * spanMetres + lowestMetres;
}

uint16_t encode16BitAltitude(double metres) {
    return encode(metres, 0xffff);
}

int displayedAltitude(int32_t feet, bool metric) {
    return metric ? roundHalfAway(feet * MetresPerFoot) : feet;
}

} // namespace skyvane
