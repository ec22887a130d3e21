#include "sensors/gdl90/messages/LevilGPSStatus.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

void LevilGPSStatus::readFromRaw(const MessageBytes& raw) {
    sbasValid = raw.byte(4) == 3;
    numSats = raw.byte(5);
    power = raw.big<uint16_t>(6) * 0.1;
    outputRate = raw.byte(8);
}

std::string LevilGPSStatus::print() const {
    return MessageText(*this)
        .add("sbasValid", sbasValid)
        .add("numSats", numSats)
        .add("power", power)
        .add("outputRate", outputRate)
        .text();
}

} // namespace skyvane
