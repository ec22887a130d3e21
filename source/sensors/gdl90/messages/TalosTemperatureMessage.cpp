#include "sensors/gdl90/messages/TalosTemperatureMessage.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

void TalosTemperatureMessage::readFromRaw(const MessageBytes& raw) {
    readHead(raw);
    temperature = raw.little<float>(17);
    limit(temperature, -273.1499938964844f, 1000.0f);
}

std::string TalosTemperatureMessage::print() const {
    return MessageText(*this)
        .add("valid", valid)
        .add("timeStamp", std::to_string(timeStamp))
        .add("temperature", temperature)
        .text();
}

} // namespace skyvane
