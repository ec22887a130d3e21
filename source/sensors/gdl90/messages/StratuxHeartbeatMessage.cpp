#include "sensors/gdl90/messages/StratuxHeartbeatMessage.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

void StratuxHeartbeatMessage::readFromRaw(const MessageBytes& raw) {
    isAHRSValid = (raw.byte(1) & 0x01) != 0;
    isGPSValid = (raw.byte(1) & 0x02) != 0;
    protocolVersion = raw.byte(1) >> 2;
}

std::string StratuxHeartbeatMessage::print() const {
    return MessageText(*this)
        .add("isGPSValid", isGPSValid)
        .add("isAHRSValid", isAHRSValid)
        .add("protocolVersion", protocolVersion)
        .text();
}

} // namespace skyvane
