#include "sensors/gdl90/messages/TalosAoAMessage.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

void TalosAoAMessage::readFromRaw(const MessageBytes& raw) {
    readHead(raw);
    AoA = raw.little<float>(17);
    cleanAoA = raw.little<float>(41);
    dirtyAoA = raw.little<float>(45);
    limit(AoA, -360.0001f, 360.0001f);
    limit(cleanAoA, -360.0001f, 360.0001f);
    limit(dirtyAoA, -360.0001f, 360.0001f);
}

std::string TalosAoAMessage::print() const {
    return MessageText(*this)
        .add("valid", valid)
        .add("timeStamp", std::to_string(timeStamp))
        .add("AoA", AoA)
        .add("cleanAoA", cleanAoA)
        .add("dirtyAoA", dirtyAoA)
        .text();
}

} // namespace skyvane
