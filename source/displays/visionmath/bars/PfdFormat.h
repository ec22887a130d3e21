#pragma once

#include "displays/gauges/DialFlag.h"
#include "displays/gauges/ShortText.h"

namespace skyvane {

// The lines of text of the bars. Nothing is allocated.

/// "GS kts: 98", "GS km/h: 181" (cut); dashes for a value that failed.
ShortText formatGroundSpeedLine(double knots, DialFlag flag, bool metric);
/// "AGL: 1230 ft" to tens of feet or threes of metres; "AGL: n/A" while it isn't known.
ShortText formatAboveGroundLine(double metres, bool isKnown, bool metric);
/// "QNH / 1013 hPa" and "29.92 inHg".
ShortText formatQnhLine(double millibars);
ShortText formatInchesLine(double millibars);
/// To tens of feet per minute, or metres per second with one decimal; with its sign.
ShortText formatVerticalSpeed(double metresPerSecond, bool metric);
ShortText formatVerticalMark(double mark, bool metric);
/// Three digits, 001 to 360.
ShortText formatDirection(double degrees);
/// "12.3 NM", "22.8 km", from a hundred on without decimals.
ShortText formatFixDistance(double nauticalMiles, bool metric);

/// How urgent a low height over ground is, 0 to 1: nothing from 400 feet on, all of it at 200 and below.
double calcLowShade(double feet);

} // namespace skyvane
