#pragma once

#include <string>

namespace skyvane {

/// A UTC date and time of day.
struct CalendarTime {
    int year = 1970, month = 1, day = 1;
    int hour = 0, minute = 0, second = 0;
    double hours = 0.0; ///< the whole time of day
};

/// From seconds since 1970, proleptic Gregorian calendar, years 1 to 9999.
CalendarTime calendarTime(double utcSeconds);

/// And back; the whole seconds count, not `hours`. A month outside 1 to 12 counts as the nearest of them.
double utcSeconds(const CalendarTime& time);

/// Reads "2026-06-01" and "10:00:00". False, and nothing changed, when either isn't a date or a time.
bool parseUtc(const std::string& date, const std::string& time, double& utcSeconds);

} // namespace skyvane
