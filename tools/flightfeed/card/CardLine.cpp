#include "flightfeed/card/CardLine.h"

#include "core/text/Numbers.h"
#include "flightfeed/flight/Units.h"

#include <charconv>
#include <cmath>
#include <sstream>

namespace skyvane {

CardLine::CardLine(const std::string& text) {
    std::istringstream in(text.substr(0, text.find('#')));
    for (std::string word; in >> word;)
        words_.push_back(word);
}

void CardLine::fail(const std::string& message) {
    if (error_.empty())
        error_ = message;
    next_ = words_.size();
}

std::string CardLine::takeWord() {
    return atEnd() ? std::string() : words_[next_++];
}

bool CardLine::takeIf(const std::string& word) {
    if (atEnd() || words_[next_] != word)
        return false;
    ++next_;
    return true;
}

void CardLine::expect(const std::string& word) {
    if (!takeIf(word))
        fail("\"" + word + "\" is missing" + (atEnd() ? "" : " before \"" + words_[next_] + "\""));
}

bool CardLine::takeValue(const char* what, double& value, std::string& unit) {
    if (atEnd()) {
        fail(std::string("no ") + what);
        return false;
    }
    const std::string word = takeWord();
    const char* const end = word.data() + word.size();
    const auto read = std::from_chars(word.data(), end, value, std::chars_format::fixed);
    if (read.ec != std::errc() || !std::isfinite(value)) {
        fail(std::string("\"") + word + "\" is no " + what);
        return false;
    }
    unit.assign(read.ptr, end);
    return true;
}

double CardLine::takeNumber(const char* what, double least, double greatest, const std::string& unit) {
    double value = 0.0;
    std::string written;
    if (!takeValue(what, value, written))
        return 0.0;
    if (!written.empty() && written != unit)
        fail(std::string("\"") + written + "\" is no unit for a " + what);
    else if (value < least || value > greatest)
        fail(std::string("the ") + what + " must lie between " + toText(least) + " and " + toText(greatest));
    return error_.empty() ? value : 0.0;
}

double CardLine::takeMetres(const char* what) {
    double value = 0.0;
    std::string unit;
    if (!takeValue(what, value, unit))
        return 0.0;
    if (unit != "ft" && unit != "m")
        fail(std::string("the ") + what + " needs the unit ft or m");
    const double metres = unit == "ft" ? value * METRES_PER_FOOT : value;
    if (metres < -500.0 || metres > 15000.0)
        fail(std::string("the ") + what + " must lie between -500 m and 15000 m");
    return error_.empty() ? metres : 0.0;
}

double CardLine::takeSeconds(const char* what) {
    double value = 0.0;
    std::string unit;
    if (!takeValue(what, value, unit))
        return 0.0;
    if (unit != "s" && unit != "min")
        fail(std::string("the ") + what + " needs the unit s or min");
    const double seconds = unit == "min" ? value * 60.0 : value;
    if (seconds <= 0.0 || seconds > 36000.0)
        fail(std::string("the ") + what + " must be longer than nothing and at most ten hours");
    return error_.empty() ? seconds : 0.0;
}

double CardLine::takeKnots(double least, double greatest) {
    return takeNumber("speed", least, greatest, "kt");
}

double CardLine::takeClimb() {
    double value = 0.0;
    std::string unit;
    if (!takeValue("rate of climb", value, unit))
        return 0.0;
    if (unit != "ftmin" && unit != "ms")
        fail("the rate of climb needs the unit ftmin or ms");
    const double rate = unit == "ftmin" ? value * METRES_PER_SECOND_PER_FOOT_PER_MINUTE : value;
    if (rate < 0.1 || rate > 10.0)
        fail("the rate of climb must lie between 0.1 and 10 metres per second (20 and 1968 feet per minute)");
    return error_.empty() ? rate : 0.0;
}

double CardLine::takeHeading() {
    return wrapDegrees360(takeNumber("heading", 0.0, 360.0, "deg"));
}

void CardLine::takePoint(double& latitudeDegrees, double& longitudeDegrees) {
    latitudeDegrees = takeNumber("latitude", -85.0, 85.0);
    longitudeDegrees = takeNumber("longitude", -180.0, 180.0);
}

} // namespace skyvane
