#include "sensors/gdl90/messages/UATUplinkGDL90Message.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

namespace {

constexpr unsigned NoTime = 0xFFFFFF;
constexpr double SecondsPerUnit = 80e-9;
constexpr size_t PayloadOffset = 4;

} // namespace

void UATUplinkGDL90Message::readFromRaw(const MessageBytes& raw) {
    const unsigned time = static_cast<unsigned>(raw.byte(1) | raw.byte(2) << 8 | raw.byte(3) << 16);
    timeOfReception.reset();
    if (time < NoTime)
        timeOfReception = time * SecondsPerUnit;
    for (size_t i = 0; i < PayloadBytes; ++i)
        payload[i] = raw.byte(PayloadOffset + i);
}

std::string UATUplinkGDL90Message::print() const {
    return MessageText(*this)
        .add("timeOfReception", timeOfReception)
        .add("payloadBytes", static_cast<double>(PayloadBytes))
        .text();
}

} // namespace skyvane
