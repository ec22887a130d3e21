#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

#include <cstddef>
#include <memory>

namespace skyvane {

class MessageBytes;

/// The type of a message by its id bytes; UNKNOWN as well when its whole frame is shorter than the type asks for.
IGDL90Message::Type findMessageType(const MessageBytes& bytes, size_t frameBytes);

/// A default message of the type.
std::unique_ptr<IGDL90Message> createMessage(IGDL90Message::Type type);

} // namespace skyvane
