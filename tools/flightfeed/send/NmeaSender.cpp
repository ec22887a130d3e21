#include "flightfeed/send/NmeaSender.h"

#include "core/text/Numbers.h"
#include "flightfeed/flight/CalendarTime.h"

#include <cmath>
#include <cstdio>

namespace skyvane {

namespace {

constexpr double FIXES_PER_SECOND = 5.0;
// Slower than that, a receiver doesn't know where it is going.
constexpr double SLOWEST_TRACK_KNOTS = 0.5;

std::string padded(int value, size_t digits) {
    const std::string text = toText(value);
    return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

// Degrees and minutes, as in 4807.03800. Whole steps of a minute, so that 60 minutes never come out.
std::string angle(double degrees, size_t degreeDigits) {
    constexpr long stepsPerMinute = 100000;
    const long steps = std::lround(std::fabs(degrees) * 60.0 * stepsPerMinute);
    const long minutes = steps / stepsPerMinute;
    return padded(static_cast<int>(minutes / 60), degreeDigits) + padded(static_cast<int>(minutes % 60), 2) + "." +
           padded(static_cast<int>(steps % stepsPerMinute), 5);
}

std::string place(const FlightState& state) {
    return angle(state.latitudeDegrees, 2) + (state.latitudeDegrees < 0.0 ? ",S," : ",N,") +
           angle(state.longitudeDegrees, 3) + (state.longitudeDegrees < 0.0 ? ",W" : ",E");
}

void append(std::string& text, const std::string& body) {
    unsigned checksum = 0;
    for (const char c : body)
        checksum ^= static_cast<unsigned char>(c);
    char end[8];
    std::snprintf(end, sizeof end, "*%02X\r\n", checksum);
    text += "$" + body + end;
}

} // namespace

void NmeaSender::send(const FlightState& state, IDatagramSink& sink) {
    const long fifth = std::lround(std::floor(state.timeSeconds * FIXES_PER_SECOND + 1e-6));
    if (fifth == lastFifth_)
        return;
    lastFifth_ = fifth;
    const long hundredths = std::lround(state.utcSeconds * 100.0);
    const CalendarTime utc = calendarTime(static_cast<double>(hundredths / 100));
    const std::string time = padded(utc.hour, 2) + padded(utc.minute, 2) + padded(utc.second, 2) + "." +
                             padded(static_cast<int>(hundredths % 100), 2);
    const std::string date = padded(utc.day, 2) + padded(utc.month, 2) + padded(utc.year % 100, 2);
    const bool isMoving = state.groundSpeedKnots >= SLOWEST_TRACK_KNOTS;
    text_.clear();
    append(text_,
           "GPGGA," + time + "," + place(state) + ",1,10,0.9," + toFixedText(state.altitudeMetres, 1) + ",M,0.0,M,,");
    append(text_, "GPGSA,A,3,02,04,06,07,09,12,17,19,24,28,,,1.6,0.9,1.3");
    append(text_, "GPRMC," + time + ",A," + place(state) + "," + toFixedText(state.groundSpeedKnots, 2) + "," +
                      (isMoving ? toFixedText(state.groundTrackDegrees, 2) : "") + "," + date + ",,,A");
    sink.send(text_.data(), text_.size());
}

} // namespace skyvane
