#include "sensors/gdl90/messages/TrafficGDL90Message.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

#include <algorithm>

namespace skyvane {

namespace {

constexpr int LargestAddressType = 6;
constexpr double DegreesPerUnit = 2.14576721191406e-5;
constexpr double MetresPerFoot = 0.3048;
constexpr int NoAltitude = 4095;
constexpr int NoVelocity = 4095;
constexpr int NoVerticalSpeed = 0x800;
constexpr double MetresPerSecondPerUnit = 0.32512; // 64 feet per minute

} // namespace

void TrafficGDL90Message::readFromRaw(const MessageBytes& raw) {
    trafficAlertStatus = raw.highNibble(1) == 1;
    addressType = std::min<int>(raw.lowNibble(1), LargestAddressType);
    address = raw.big24(2);
    latitude = raw.signedBig24(5) * DegreesPerUnit;
    longitude = raw.signedBig24(8) * DegreesPerUnit;
    readMotion(raw);
    miscId = raw.byte(12) & 0x03;
    isExtrapolated = (raw.byte(12) & 0x04) != 0;
    isAirborne = (raw.byte(12) & 0x08) != 0;
    navigationIntegrityCategory = raw.highNibble(13);
    navigationAccuracyCategoryPosition = raw.lowNibble(13);
    emitterCategory = raw.byte(18);
    raw.readName(19, 8, callSign);
    emergencyPriorityCode = raw.highNibble(27);
}

void TrafficGDL90Message::readMotion(const MessageBytes& raw) {
    pressureAltitude.reset();
    velocity.reset();
    verticalSpeed.reset();
    const int altitude = raw.byte(11) << 4 | raw.highNibble(12);
    if (altitude != NoAltitude)
        pressureAltitude = (altitude * 25 - 1000) * MetresPerFoot;
    const int knots = raw.byte(14) << 4 | raw.highNibble(15);
    if (knots != NoVelocity)
        velocity = knots;
    const int climb = raw.lowNibble(15) << 8 | raw.byte(16);
    if (climb != NoVerticalSpeed)
        verticalSpeed = (climb < NoVerticalSpeed ? climb : climb - 4096) * MetresPerSecondPerUnit;
    track = raw.byte(17) * 360.0 / 256.0;
}

bool TrafficGDL90Message::isPositionAvailable() const {
    return navigationIntegrityCategory != 0 || latitude != 0.0 || longitude != 0.0;
}

std::string TrafficGDL90Message::print() const {
    return MessageText(*this)
        .add("trafficAlertStatus", trafficAlertStatus)
        .add("addressType", addressType)
        .add("address", address)
        .add("latitude", latitude)
        .add("longitude", longitude)
        .add("pressureAltitude", pressureAltitude)
        .add("miscId", miscId)
        .add("isExtrapolated", isExtrapolated)
        .add("isAirborne", isAirborne)
        .add("navigationIntegrityCategory", navigationIntegrityCategory)
        .add("navigationAccuracyCategoryPosition", navigationAccuracyCategoryPosition)
        .add("velocity", velocity)
        .add("verticalSpeed", verticalSpeed)
        .add("track", track)
        .add("emitterCategory", emitterCategory)
        .add("callSign", callSign)
        .add("emergencyPriorityCode", emergencyPriorityCode)
        .text();
}

} // namespace skyvane
