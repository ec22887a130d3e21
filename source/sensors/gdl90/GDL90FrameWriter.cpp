#include "sensors/gdl90/GDL90FrameWriter.h"

#include "sensors/gdl90/GDL90Crc.h"
#include "sensors/gdl90/GDL90Parser.h"

namespace skyvane {
namespace {

void appendEscaped(std::vector<uint8_t>& out, uint8_t byte) {
    const bool isSpecial = byte == GDL90Parser::Flag || byte == GDL90Parser::Escape;
    if (isSpecial)
        out.push_back(GDL90Parser::Escape);
    out.push_back(isSpecial ? byte ^ GDL90Parser::EscapeMask : byte);
}

} // namespace

void appendGDL90Frame(std::vector<uint8_t>& out, const uint8_t* message, size_t length) {
    const uint16_t crc = calcGDL90Crc(message, length);
    out.push_back(GDL90Parser::Flag);
    for (size_t i = 0; i < length; ++i)
        appendEscaped(out, message[i]);
    appendEscaped(out, static_cast<uint8_t>(crc & 0xFFu));
    appendEscaped(out, static_cast<uint8_t>(crc >> 8));
    out.push_back(GDL90Parser::Flag);
}

} // namespace skyvane
