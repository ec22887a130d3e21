#include "core/text/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace skyvane {

namespace {

// The leading number of the text, after blanks and one sign; false when there is none or it doesn't fit.
template <class T>
bool readNumber(std::string_view text, T& value) {
    const char* end = text.data() + text.size();
    const char* begin = std::find_if(text.data(), end, [](char c) { return !c || !std::strchr(" \t\n\v\f\r", c); });
    if (begin != end && *begin == '+') {
        ++begin;
        if (begin != end && *begin == '-')
            return false;
    }
    return std::from_chars(begin, end, value).ec == std::errc();
}

// Adds one unit in the last place of a decimal text of digits and at most one point.
void increment(std::string& digits) {
    for (size_t i = digits.size(); i-- > 0;) {
        if (digits[i] == '.')
            continue;
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.insert(digits.begin(), '1');
}

// Longest plain decimal text of a double: the smallest denormal needs 326 places.
constexpr size_t longestDecimal = 400;

} // namespace

int toInt(std::string_view text, int fallback) {
    int value = 0;
    return readNumber(text, value) ? value : fallback;
}

unsigned toUnsigned(std::string_view text, unsigned fallback) {
    unsigned value = 0;
    return readNumber(text, value) ? value : fallback;
}

double toDouble(std::string_view text, double fallback) {
    double value = 0.0;
    return readNumber(text, value) && std::isfinite(value) ? value : fallback;
}

bool toBool(std::string_view text, bool fallback) {
    return toInt(text, fallback ? 1 : 0) != 0;
}

std::string toText(double value) {
    char buffer[longestDecimal];
    return std::string(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
}

std::string toText(int value) {
    return std::to_string(value);
}

std::string toFixedText(double value, int decimals) {
    if (!std::isfinite(value))
        return toText(value);
    const size_t places = static_cast<size_t>(std::clamp(decimals, 0, 100));
    char buffer[longestDecimal];
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::fixed);
    std::string digits(buffer, written.ptr);

    size_t point = digits.find('.');
    if (point == std::string::npos) {
        point = digits.size();
        digits += '.';
    }
    const size_t length = point + 1 + places;
    const bool up = digits.size() > length && digits[length] >= '5';
    digits.resize(length, '0');
    if (up)
        increment(digits);
    if (places == 0)
        digits.pop_back();
    const bool isZero = digits.find_first_not_of("0.") == std::string::npos;
    return value < 0.0 && !isZero ? "-" + digits : digits;
}

int roundHalfAway(double value) {
    if (std::isnan(value))
        return 0;
    const double whole = std::round(value);
    return static_cast<int>(
        std::clamp<double>(whole, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

} // namespace skyvane
