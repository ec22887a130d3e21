#include "sensors/gdl90/messages/TalosMessage.h"

#include "sensors/gdl90/messages/MessageBytes.h"

namespace skyvane {

void TalosMessage::readHead(const MessageBytes& raw) {
    valid = raw.byte(1) == 1;
    timeStamp = raw.little<uint64_t>(9);
}

} // namespace skyvane
