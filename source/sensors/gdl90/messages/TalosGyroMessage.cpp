#include "sensors/gdl90/messages/TalosGyroMessage.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

void TalosGyroMessage::readFromRaw(const MessageBytes& raw) {
    readHead(raw);
    gyroX = raw.little<float>(17);
    gyroY = raw.little<float>(21);
    gyroZ = raw.little<float>(25);
    limit(gyroX, -6.2832856f, 6.2832856f);
    limit(gyroY, -6.2832856f, 6.2832856f);
    limit(gyroZ, -6.2832856f, 6.2832856f);
}

std::string TalosGyroMessage::print() const {
    return MessageText(*this)
        .add("valid", valid)
        .add("timeStamp", std::to_string(timeStamp))
        .add("gyroX", gyroX)
        .add("gyroY", gyroY)
        .add("gyroZ", gyroZ)
        .text();
}

} // namespace skyvane
