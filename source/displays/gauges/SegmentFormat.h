#pragma once

#include "displays/gauges/ShortText.h"

namespace skyvane {

class GPS_Data;

// The values of value fields as text: halves are rounded away from zero, there is no "-0". What can't be had, and what
// isn't finite, is notAvailable. Nothing is allocated but by formatPosition().

constexpr wchar_t notAvailable[] = L"n/A";

ShortText formatWhole(double value);
/// Brought below 360, then rounded: 359.7 gives "360°".
ShortText formatHeading(double degrees);
/// None at -0.5 or below.
ShortText formatBearing(double degrees);
/// None for negative seconds. "01:02:03".
ShortText formatEte(int seconds);
/// The time of the satellite record plus the seconds, around the clock.
ShortText formatEta(const GPS_Data& record, int eteSeconds);
/// None at -1e-8 or below.
ShortText formatDistance(double nauticalMiles, bool metric);
ShortText formatGroundSpeed(double knots, bool metric);
ShortText formatAltitude(double metres, bool metric);
/// To tens of feet or threes of metres. None for an elevation of 0, which stands for unknown.
ShortText formatHeightAboveGround(double altitudeMetres, double elevationMetres, bool metric);
ShortText formatUtc(const GPS_Data& record);
/// Month, day and year.
ShortText formatDate(const GPS_Data& record);
ShortText formatPosition(const GPS_Data& record);
ShortText formatSatellites(const GPS_Data& record);
/// Pressures and temperatures: none below zero, which stands for no measurement.
ShortText formatMeasurement(double value);
/// The altitude in the standard atmosphere; none for a pressure of 0 or less.
ShortText formatPressureAltitude(double hectopascal, bool metric);

} // namespace skyvane
