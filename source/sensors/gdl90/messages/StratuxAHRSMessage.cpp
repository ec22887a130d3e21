#include "sensors/gdl90/messages/StratuxAHRSMessage.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

namespace {

constexpr double MetresPerFoot = 0.3048;
constexpr double MetresPerSecondPerFootPerMinute = 0.00508;
constexpr uint16_t NoPressureAltitude = 0xFFFF;
constexpr double PressureAltitudeOffsetMetres = 1524.1524;

} // namespace

void StratuxAHRSMessage::readFromRaw(const MessageBytes& raw) {
    roll = raw.scaled(4, 0.1);
    pitch = raw.scaled(6, 0.1);
    heading = raw.scaled(8, 0.1);
    slipSkid = raw.scaled(10, 0.01);
    yawRate = raw.scaled(12, 0.1);
    gLoad = raw.scaled(14, 0.981);
    indicatedAirspeed = raw.scaled(16, 1.0);
    pressureAltitude.reset();
    if (const auto feet = raw.word(18, NoPressureAltitude))
        pressureAltitude = *feet * MetresPerFoot - PressureAltitudeOffsetMetres;
    verticalSpeed = raw.scaled(20, MetresPerSecondPerFootPerMinute);
}

std::string StratuxAHRSMessage::print() const {
    return MessageText(*this)
        .add("roll", roll)
        .add("pitch", pitch)
        .add("heading", heading)
        .add("slipSkid", slipSkid)
        .add("yawRate", yawRate)
        .add("gLoad", gLoad)
        .add("indicatedAirspeed", indicatedAirspeed)
        .add("pressureAltitude", pressureAltitude)
        .add("verticalSpeed", verticalSpeed)
        .text();
}

} // namespace skyvane
