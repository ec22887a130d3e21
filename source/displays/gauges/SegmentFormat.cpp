#include "displays/gauges/SegmentFormat.h"

#include "chart/geodesy/Angles.h"
#include "core/text/Numbers.h"
#include "displays/gauges/Needles.h"
#include "sensors/records/GPS_Data.h"

#include <cmath>

namespace skyvane {

namespace {

constexpr double kilometresPerHourOfKnot = 0.514444444 * 3.6;
constexpr double kilometresPerNauticalMile = 1852.0 / 1000.0;
constexpr double unknownElevationMetres = 0.0001;

ShortText& appendWhole(ShortText& text, int value) {
    return text.append(std::string_view(toText(value)));
}

ShortText& appendTwoDigits(ShortText& text, int value) {
    if (value >= 0 && value < 10)
        text.append(L"0");
    return appendWhole(text, value);
}

bool isBetween(int value, int lowest, int highest) {
    return value >= lowest && value <= highest;
}

bool hasTime(const GPS_Data& record) {
    return record.timeAvailable && isBetween(record.hour, 0, 23) && isBetween(record.minute, 0, 59) &&
           isBetween(record.second, 0, 60);
}

/// Hours, minutes and seconds, all with two digits at least.
ShortText formatClock(long seconds) {
    ShortText text;
    appendTwoDigits(text, static_cast<int>(seconds / 3600)).append(L":");
    appendTwoDigits(text, static_cast<int>(seconds / 60 % 60)).append(L":");
    return appendTwoDigits(text, static_cast<int>(seconds % 60));
}

} // namespace

ShortText formatWhole(double value) {
    if (!std::isfinite(value))
        return notAvailable;
    ShortText text;
    return appendWhole(text, roundHalfAway(value));
}

ShortText formatHeading(double degrees) {
    return std::isfinite(degrees) ? formatWhole(Angle0to360(degrees)).append(L"\u00B0") : notAvailable;
}

ShortText formatBearing(double degrees) {
    return degrees > -0.5 ? formatHeading(degrees < 0.0 ? 0.0 : degrees) : notAvailable;
}

ShortText formatEte(int seconds) {
    return seconds >= 0 ? formatClock(seconds) : notAvailable;
}

ShortText formatEta(const GPS_Data& record, int eteSeconds) {
    if (eteSeconds < 0 || !hasTime(record))
        return notAvailable;
    const long now = record.hour * 3600L + record.minute * 60L + record.second;
    return formatClock((now + eteSeconds) % (24L * 3600L));
}

ShortText formatDistance(double nauticalMiles, bool metric) {
    if (!(nauticalMiles > -1e-8))
        return notAvailable;
    return formatWhole(metric ? nauticalMiles * kilometresPerNauticalMile : nauticalMiles);
}

ShortText formatGroundSpeed(double knots, bool metric) {
    return formatWhole(metric ? knots * kilometresPerHourOfKnot : knots);
}

ShortText formatAltitude(double metres, bool metric) {
    return formatWhole(metric ? metres : metres / metresPerFoot);
}

ShortText formatHeightAboveGround(double altitudeMetres, double elevationMetres, bool metric) {
    const double height = altitudeMetres - elevationMetres;
    if (!(std::abs(elevationMetres) > unknownElevationMetres) || !std::isfinite(height))
        return notAvailable;
    return formatWhole(metric ? 3.0 * std::round(height / 3.0) : 10.0 * std::round(height / metresPerFoot / 10.0));
}

ShortText formatUtc(const GPS_Data& record) {
    if (!hasTime(record))
        return notAvailable;
    ShortText text;
    appendTwoDigits(text, record.hour).append(L":");
    return appendTwoDigits(text, record.minute);
}

ShortText formatDate(const GPS_Data& record) {
    if (!record.dateAvailable || !isBetween(record.month, 1, 12) || !isBetween(record.day, 1, 31) ||
        !isBetween(record.year, 0, 9999))
        return notAvailable;
    ShortText text;
    appendTwoDigits(text, record.month).append(L"/");
    appendTwoDigits(text, record.day).append(L"/");
    return appendWhole(text, record.year);
}

ShortText formatPosition(const GPS_Data& record) {
    if (!record.positionAvailable || !std::isfinite(record.latitude) || !std::isfinite(record.longitude))
        return notAvailable;
    return ShortText()
        .append(std::wstring_view(record.calcLatitudeString()))
        .append(L"\n")
        .append(std::wstring_view(record.calcLongitudeString()));
}

ShortText formatSatellites(const GPS_Data& record) {
    return record.satelliteCount >= 0 ? formatWhole(record.satelliteCount) : notAvailable;
}

ShortText formatMeasurement(double value) {
    return value >= 0.0 ? formatWhole(value) : notAvailable;
}

ShortText formatPressureAltitude(double hectopascal, bool metric) {
    if (!(hectopascal > 1e-8))
        return notAvailable;
    const double share = 1.0 - std::pow(hectopascal / 1013.25, 0.19029495718363465);
    return formatWhole(share * (metric ? 44330.0 : 145439.63254593176));
}

} // namespace skyvane
