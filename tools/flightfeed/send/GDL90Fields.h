#pragma once

#include "flightfeed/flight/FlightState.h"

#include <cstdint>
#include <string>
#include <vector>

namespace skyvane {

/// Builds one message, field after field. Numbers are big-endian unless the name says otherwise.
class GDL90Fields {
public:
    explicit GDL90Fields(uint8_t id) : bytes_{id} {}

    GDL90Fields& byte(int value);
    GDL90Fields& big16(int value) { return byte(value >> 8).byte(value); }
    GDL90Fields& big24(uint32_t value);
    GDL90Fields& little16(int value) { return byte(value).byte(value >> 8); }
    GDL90Fields& little64(uint64_t value);
    GDL90Fields& littleFloat(float value);
    /// A signed word of so many units each.
    GDL90Fields& scaled(double value, double unit);
    /// Filled up with blanks.
    GDL90Fields& text(const std::string& letters, size_t length);
    GDL90Fields& zeros(int count);

    const std::vector<uint8_t>& bytes() const { return bytes_; }

private:
    std::vector<uint8_t> bytes_;
};

constexpr double STALL_DEGREES = 16.0;

/// The nearest whole number within the limits.
double rounded(double value, double least, double greatest);
/// Pitch less the angle of the path through the air.
double angleOfAttackDegrees(const FlightState& state);
/// A whole uplink message: one frame of generic text of the flight information service.
std::vector<uint8_t> uplinkMessage(const FlightState& state, const std::string& text);

} // namespace skyvane
