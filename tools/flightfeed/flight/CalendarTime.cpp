#include "flightfeed/flight/CalendarTime.h"

#include "core/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace skyvane {

namespace {

constexpr double DAY_SECONDS = 86400.0;
constexpr int64_t DAYS_0_TO_1970 = 719468; // from 1 March of the year 0
constexpr int64_t DAYS_PER_400_YEARS = 146097;

// Years begin in March here, so that the leap day is a year's last one.
int64_t daysSince1970(int year, int month, int day) {
    const int64_t y = month > 2 ? year : year - 1;
    const int64_t monthFromMarch = (month + 9) % 12;
    const int64_t dayOfYear = (153 * monthFromMarch + 2) / 5 + day - 1;
    return y * 365 + y / 4 - y / 100 + y / 400 + dayOfYear - DAYS_0_TO_1970;
}

void setDate(CalendarTime& out, int64_t daysSince1970) {
    const int64_t days = daysSince1970 + DAYS_0_TO_1970;
    const int64_t era = days / DAYS_PER_400_YEARS;
    const int64_t dayOfEra = days % DAYS_PER_400_YEARS;
    const int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    out.day = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
    out.month = static_cast<int>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
    out.year = static_cast<int>(era * 400 + yearOfEra + (out.month <= 2 ? 1 : 0));
}

// Digits at the places of a pattern of digits and signs.
bool matches(const std::string& text, const std::string& pattern) {
    return text.size() == pattern.size() && std::equal(text.begin(), text.end(), pattern.begin(), [](char c, char p) {
               return p == '0' ? c >= '0' && c <= '9' : c == p;
           });
}

} // namespace

CalendarTime calendarTime(double utcSeconds) {
    CalendarTime out;
    const double days = std::floor(utcSeconds / DAY_SECONDS);
    const double ofDay = std::clamp(utcSeconds - days * DAY_SECONDS, 0.0, DAY_SECONDS - 1e-6);
    setDate(out, static_cast<int64_t>(days));
    const int whole = static_cast<int>(ofDay);
    out.hour = whole / 3600;
    out.minute = whole / 60 % 60;
    out.second = whole % 60;
    out.hours = ofDay / 3600.0;
    return out;
}

double utcSeconds(const CalendarTime& time) {
    const int64_t days = daysSince1970(time.year, std::clamp(time.month, 1, 12), time.day);
    return static_cast<double>(days) * DAY_SECONDS + 3600.0 * time.hour + 60.0 * time.minute + time.second;
}

bool parseUtc(const std::string& date, const std::string& time, double& utcSeconds) {
    if (!matches(date, "0000-00-00") || !matches(time, "00:00:00"))
        return false;
    CalendarTime asked;
    asked.year = toInt(date.substr(0, 4));
    asked.month = toInt(date.substr(5, 2));
    asked.day = toInt(date.substr(8, 2));
    asked.hour = toInt(time.substr(0, 2));
    asked.minute = toInt(time.substr(3, 2));
    asked.second = toInt(time.substr(6, 2));
    if (asked.year < 1 || asked.month < 1 || asked.month > 12 || asked.hour > 23 || asked.minute > 59 ||
        asked.second > 59)
        return false;
    const double seconds = skyvane::utcSeconds(asked);
    const CalendarTime real = calendarTime(seconds);
    if (real.day != asked.day || real.month != asked.month)
        return false;
    utcSeconds = seconds;
    return true;
}

} // namespace skyvane
