#include "sensors/gdl90/messages/FFAHRSMessage.h"

#include "core/log/Logger.h"
#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

namespace {

constexpr uint8_t SubId = 1;
constexpr uint16_t Missing = 0xFFFF;

} // namespace

void FFAHRSMessage::readFromRaw(const MessageBytes& raw) {
    const bool isAHRS = raw.byte(1) == SubId;
    if (!isAHRS)
        logText("Error: Invalid FF AHRS Sub-Message D: " + std::to_string(raw.byte(1)) + "\n");
    const MessageBytes bytes(raw.data(), isAHRS ? raw.count() : 0);
    roll = bytes.scaled(2, 0.1);
    pitch = bytes.scaled(4, 0.1);
    readHeading(bytes);
    indicatedAirspeed = bytes.scaled(8, 1.0, Missing);
    trueAirspeed = bytes.scaled(10, 1.0, Missing);
}

/// The highest bit tells magnetic from true, the others are tenths of degrees.
void FFAHRSMessage::readHeading(const MessageBytes& raw) {
    const auto word = raw.word(6, Missing);
    isTrueHeading = word && (*word & 0x8000) == 0;
    heading = word ? std::optional<double>((*word & 0x7FFF) / 10.0) : std::nullopt;
}

std::string FFAHRSMessage::print() const {
    return MessageText(*this)
        .add("roll", roll)
        .add("pitch", pitch)
        .add("heading", heading)
        .add("isTrueHeading", isTrueHeading)
        .add("indicatedAirspeed", indicatedAirspeed)
        .add("trueAirspeed", trueAirspeed)
        .text();
}

} // namespace skyvane
