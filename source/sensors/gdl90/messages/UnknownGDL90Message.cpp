#include "sensors/gdl90/messages/UnknownGDL90Message.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

void UnknownGDL90Message::readFromRaw(const MessageBytes& raw) {
    id = raw.count() > 0 ? raw.byte(0) : NoId;
}

std::string UnknownGDL90Message::print() const {
    return MessageText(*this).add("id", id).text();
}

} // namespace skyvane
