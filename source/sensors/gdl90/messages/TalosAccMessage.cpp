#include "sensors/gdl90/messages/TalosAccMessage.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

void TalosAccMessage::readFromRaw(const MessageBytes& raw) {
    readHead(raw);
    accX = raw.little<float>(17);
    accY = raw.little<float>(21);
    accZ = raw.little<float>(25);
    limit(accX, -98.1f, 98.1f);
    limit(accY, -98.1f, 98.1f);
    limit(accZ, -98.1f, 98.1f);
}

std::string TalosAccMessage::print() const {
    return MessageText(*this)
        .add("valid", valid)
        .add("timeStamp", std::to_string(timeStamp))
        .add("accX", accX)
        .add("accY", accY)
        .add("accZ", accZ)
        .text();
}

} // namespace skyvane
