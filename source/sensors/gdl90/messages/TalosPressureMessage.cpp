#include "sensors/gdl90/messages/TalosPressureMessage.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

void TalosPressureMessage::readFromRaw(const MessageBytes& raw) {
    readHead(raw);
    staticPressure = raw.little<float>(17);
    pitotPressure = raw.little<float>(21);
    airspeed = raw.little<float>(25);
    limit(staticPressure, -0.0001f, 10000.0f);
    limit(airspeed, -0.0001f, 1000.0f);
}

std::string TalosPressureMessage::print() const {
    return MessageText(*this)
        .add("valid", valid)
        .add("timeStamp", std::to_string(timeStamp))
        .add("staticPressure", staticPressure)
        .add("pitotPressure", pitotPressure)
        .add("airspeed", airspeed)
        .text();
}

} // namespace skyvane
