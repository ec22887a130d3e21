#include "sensors/gdl90/messages/LevilAoAMessage.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

namespace {

constexpr uint8_t Missing = 255;

} // namespace

void LevilAoAMessage::readFromRaw(const MessageBytes& raw) {
    AoA.reset();
    if (raw.byte(4) != Missing)
        AoA = raw.byte(4) * 0.01;
    outsideTemperature.reset();
    if (raw.byte(5) != Missing)
        outsideTemperature = raw.byte(5) - 50.0;
    altitudeOffset = raw.big<int16_t>(7);
    turbineSpeed = raw.big<uint16_t>(9);
    speedOffset = raw.byte(24);
}

std::string LevilAoAMessage::print() const {
    return MessageText(*this)
        .add("AoA", AoA)
        .add("outsideTemperature", outsideTemperature)
        .add("speedOffset", speedOffset)
        .add("altitudeOffset", altitudeOffset)
        .add("turbineSpeed", turbineSpeed)
        .text();
}

} // namespace skyvane
