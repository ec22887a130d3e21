#include "displays/mapmath/elements/ElementFilter.h"

#include "chart/elements/AirspaceElement.h"
#include "chart/elements/AltitudeCodes.h"
#include "chart/elements/GroundGeometryElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "displays/mapmath/elements/GroundStyles.h"

namespace skyvane {

namespace {

constexpr double largestSmallAirportArea = 55.0;
constexpr double largestNavaidArea = 30.0, everyNavaidArea = 2.5;
constexpr double largestWaypointArea = 15.0, everyWaypointArea = 0.3;
constexpr double largestAirwayArea = 30.0;
constexpr double lowObstructionMetres = 1100.0 * MetresPerFoot;
constexpr double codeRangeMetres = 9500.0, codeStartMetres = -500.0;
constexpr unsigned highestCode = 65535;
constexpr double narrowMetres = 14.0, metresPerWidthStep = 0.5, areaOfOneStep = 15258.0;

enum AirportBit { Closed = 1, Heliport = 2, Private = 4, Glider = 8, Towered = 16 };
enum UseBit { HighAltitude = 1, LowAltitude = 2 };
enum GroundBit { FeatureBits = 0x1f, NoWidth = 0x20, IsPolygon = 0x40, IsSmall = 0x80 };

unsigned byteAt(const char* bytes, int index) {
    return static_cast<unsigned char>(bytes[index]);
}

unsigned wordOf(const char* bytes) {
    return byteAt(bytes, 1) | byteAt(bytes, 2) << 8;
}

bool isForSwitches(unsigned use, const MapSwitches& switches) {
    return (switches.lowIFR && (use & LowAltitude)) || (switches.highIFR && (use & HighAltitude));
}

} // namespace

double staticObstructionTop(const char* bytes) {
    return wordOf(bytes) * codeRangeMetres / highestCode + codeStartMetres;
}

double staticAirspaceFloor(const char* bytes) {
    return decode12BitAltitude(static_cast<uint16_t>(wordOf(bytes)));
}

bool MapFilter::showsAirport(const char* bytes) const {
    const unsigned flags = byteAt(bytes, 1);
    if (isTarget)
        return true;
    if (viewArea > largestSmallAirportArea && !(flags & Towered))
        return false;
    return (switches.closed || !(flags & Closed)) && (switches.heliports || !(flags & Heliport)) &&
           (switches.privateAirports || !(flags & Private)) && (switches.glider || !(flags & Glider));
}

bool MapFilter::showsNavaid(const char* bytes) const {
    if (isTarget || viewArea <= everyNavaidArea)
        return true;
    return viewArea <= largestNavaidArea && isForSwitches(byteAt(bytes, 1), switches);
}

bool MapFilter::showsWaypoint(const char* bytes) const {
    if (isTarget || viewArea <= everyWaypointArea)
        return true;
    return viewArea <= largestWaypointArea && isForSwitches(byteAt(bytes, 1), switches);
}

bool MapFilter::showsAirway(const char* bytes) const {
    if (isTarget)
        return true;
    return viewArea <= largestAirwayArea && switches.airways && isForSwitches(byteAt(bytes, 1), switches);
}

bool MapFilter::showsMark() const {
    return isTarget || switches.marks;
}

bool MapFilter::showsObstruction(const char* bytes, double altitudeMetres) const {
    if (isTarget)
        return true;
    if (!switches.terrainEnable || viewArea > largestObstructionArea)
        return false;
    // The highest code stands for everything above it too. Without an altitude nothing is known to be low.
    const bool isLow =
        wordOf(bytes) < highestCode && altitudeMetres - staticObstructionTop(bytes) >= lowObstructionMetres;
    return switches.lowObstacles || !isLow;
}

bool MapFilter::showsAirspace(const char* bytes, const bool* isIrrelevant, int airspacesBelowFeet) const {
    if (isTarget)
        return true;
    if (!switches.airspaces || staticAirspaceFloor(bytes) >= airspacesBelowFeet * MetresPerFoot)
        return false;
    return switches.irrelevant || !isIrrelevant[AirspaceElement::readStaticAirspaceClass(bytes)];
}

bool MapFilter::showsGround(const char* bytes) const {
    const unsigned flags = byteAt(bytes, 2);
    const auto feature = static_cast<uint8_t>(flags & FeatureBits);
    if (!isGroundSwitchedOn(feature, switches))
        return false;
    const double metres = ggeByteToArea(static_cast<int>(byteAt(bytes, 1))) / areaOfOneStep * metresPerWidthStep;
    const bool isNarrow = !(flags & NoWidth) && metres < narrowMetres;
    const bool isSmall = flags & IsPolygon ? (flags & IsSmall) != 0 : isNarrow;
    const GroundStyle& style = groundStyle(feature);
    return viewArea <= (isSmall ? style.largestSmall : style.largestArea);
}

} // namespace skyvane
