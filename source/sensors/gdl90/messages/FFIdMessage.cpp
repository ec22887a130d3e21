#include "sensors/gdl90/messages/FFIdMessage.h"

#include "core/log/Logger.h"
#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

namespace {

constexpr uint8_t SubId = 0;

} // namespace

void FFIdMessage::readFromRaw(const MessageBytes& raw) {
    if (raw.byte(1) != SubId)
        logText("Error: Invalid FF ID Sub-Message D: " + std::to_string(raw.byte(1)) + "\n");
    serialNumber = raw.big<uint64_t>(3);
    raw.readName(11, 8, deviceName);
    raw.readName(19, 16, deviceLongName);
    isOwnShipMSLAltitude = (raw.byte(38) & 0x01) != 0;
}

std::string FFIdMessage::print() const {
    return MessageText(*this)
        .add("serialNumber", std::to_string(serialNumber))
        .add("deviceName", deviceName)
        .add("deviceLongName", deviceLongName)
        .add("isOwnShipMSLAltitude", isOwnShipMSLAltitude)
        .text();
}

} // namespace skyvane
