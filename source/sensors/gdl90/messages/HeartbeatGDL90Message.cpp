#include "sensors/gdl90/messages/HeartbeatGDL90Message.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

void HeartbeatGDL90Message::readFromRaw(const MessageBytes& raw) {
    status1 = raw.byte(1);
    status2 = raw.byte(2);
    secondsSinceMidnight = raw.little<uint16_t>(3) + (status2 > 127 ? 65536 : 0);
    messageCount = raw.little<uint16_t>(5);
}

std::string HeartbeatGDL90Message::print() const {
    return MessageText(*this)
        .add("status1", status1)
        .add("status2", status2)
        .add("secondsSinceMidnight", secondsSinceMidnight)
        .add("messageCount", messageCount)
        .text();
}

} // namespace skyvane
