#include "flightfeed/send/GDL90Fields.h"

#include "flightfeed/flight/CalendarTime.h"
#include "flightfeed/flight/Units.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace skyvane {

namespace {

constexpr size_t UPLINK_BYTES = 4 + 432;
constexpr size_t LONGEST_TEXT = 500; // 6 bits each
constexpr unsigned GENERIC_TEXT = 413;
constexpr double DEGREES_PER_UPLINK_UNIT = 360.0 / 16777216.0;

void add(std::vector<uint8_t>& bytes, std::initializer_list<unsigned> more) {
    for (const unsigned byte : more)
        bytes.push_back(static_cast<uint8_t>(byte));
}

// The six-bit alphabet of the service; what it lacks becomes a blank.
unsigned sixBits(char letter) {
    if (letter >= 'A' && letter <= 'Z')
        return static_cast<unsigned>(letter - 'A' + 1);
    return letter >= ' ' && letter <= '?' ? static_cast<unsigned>(letter) : ' ';
}

std::vector<uint8_t> packText(const std::string& text) {
    std::vector<uint8_t> packed;
    unsigned bits = 0, count = 0;
    for (const char letter : text.substr(0, LONGEST_TEXT)) {
        bits = bits << 6 | sixBits(letter);
        count += 6;
        for (; count >= 8; count -= 8)
            packed.push_back(static_cast<uint8_t>(bits >> (count - 8)));
    }
    if (count > 0)
        packed.push_back(static_cast<uint8_t>(bits << (8 - count)));
    return packed;
}

// Where the station stands: 23 bits of latitude, 24 of longitude, then what is valid.
void addStation(std::vector<uint8_t>& bytes, const FlightState& s) {
    const auto latitude = static_cast<unsigned>(std::lround(s.latitudeDegrees / DEGREES_PER_UPLINK_UNIT)) & 0x7FFFFFu;
    const auto longitude =
        static_cast<unsigned>(std::lround(wrapDegrees360(s.longitudeDegrees) / DEGREES_PER_UPLINK_UNIT)) & 0xFFFFFFu;
    add(bytes, {latitude >> 15, latitude >> 7, latitude << 1 | longitude >> 23, longitude >> 15, longitude >> 7,
                longitude << 1 | 1u, 0xA1, 0x10});
}

} // namespace

GDL90Fields& GDL90Fields::byte(int value) {
    bytes_.push_back(static_cast<uint8_t>(value));
    return *this;
}

GDL90Fields& GDL90Fields::big24(uint32_t value) {
    return byte(static_cast<int>(value >> 16)).big16(static_cast<int>(value & 0xFFFF));
}

GDL90Fields& GDL90Fields::little64(uint64_t value) {
    for (int shift = 0; shift < 64; shift += 8)
        byte(static_cast<int>(value >> shift & 0xFF));
    return *this;
}

GDL90Fields& GDL90Fields::littleFloat(float value) {
    uint32_t bits = 0;
    std::memcpy(&bits, &value, sizeof(bits));
    return little16(static_cast<int>(bits & 0xFFFF)).little16(static_cast<int>(bits >> 16));
}

GDL90Fields& GDL90Fields::scaled(double value, double unit) {
    return big16(static_cast<int>(rounded(value / unit, -32768.0, 32766.0)));
}

GDL90Fields& GDL90Fields::text(const std::string& letters, size_t length) {
    for (size_t i = 0; i < length; ++i)
        byte(i < letters.size() ? letters[i] : ' ');
    return *this;
}

GDL90Fields& GDL90Fields::zeros(int count) {
    bytes_.resize(bytes_.size() + static_cast<size_t>(count));
    return *this;
}

double rounded(double value, double least, double greatest) {
    return std::clamp(std::round(value), least, greatest);
}

double angleOfAttackDegrees(const FlightState& s) {
    const double speed = s.trueAirspeedKnots * METRES_PER_SECOND_PER_KNOT;
    return speed < 1.0 ? 0.0 : s.pitchDegrees - toDegrees(std::atan2(s.verticalSpeedMetresPerSecond, speed));
}

std::vector<uint8_t> uplinkMessage(const FlightState& s, const std::string& text) {
    std::vector<uint8_t> bytes{7, 0, 0, 0};
    addStation(bytes, s);
    const std::vector<uint8_t> packed = packText(text);
    const CalendarTime time = calendarTime(s.utcSeconds);
    const auto hour = static_cast<unsigned>(time.hour), minute = static_cast<unsigned>(time.minute);
    const auto length = static_cast<unsigned>(packed.size() + 4);
    add(bytes, {length >> 1, length << 7 & 0x80u});
    add(bytes, {GENERIC_TEXT >> 6, GENERIC_TEXT << 2 & 0xFFu, hour << 2 | minute >> 4, minute << 4 & 0xF0u});
    bytes.insert(bytes.end(), packed.begin(), packed.end());
    bytes.resize(UPLINK_BYTES);
    return bytes;
}

} // namespace skyvane
