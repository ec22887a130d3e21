#include "sensors/gdl90/GDL90Parser.h"

#include "sensors/gdl90/GDL90Crc.h"
#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageKinds.h"

#include <iostream>
#include <utility>

namespace skyvane {
namespace {

constexpr int MostComplaints = 200;
constexpr size_t CheckBytes = 2;
/// Flag, id and check sequence: what a frame holds at least before its closing flag.
constexpr size_t LeastStored = 4;

} // namespace

bool GDL90Parser::atFlag() {
    if (count_ < LeastStored) {
        buffer_[0] = Flag;
        count_ = 1;
        return false;
    }
    buffer_[count_] = Flag;
    size_ = count_ + 1;
    count_ = 0;
    return isChecked();
}

bool GDL90Parser::isChecked() {
    const uint8_t* check = buffer_.data() + size_ - 1 - CheckBytes;
    const unsigned received = static_cast<unsigned>(check[0] | check[1] << 8);
    if (received == 0)
        return true;
    const uint8_t* message = buffer_.data() + 1;
    const unsigned calculated = calcGDL90Crc(message, static_cast<size_t>(check - message));
    if (received != calculated && shallComplain())
        std::cerr << "Bad Checksum received: " << std::to_string(received)
                  << " calculated: " << std::to_string(calculated) << "\n";
    return received == calculated;
}

void GDL90Parser::dropOversize() {
    count_ = 0;
    if (shallComplain())
        std::cerr << "GDL90 buffer overflow detected\n";
}

/// A flood of bad frames must not fill the disk.
bool GDL90Parser::shallComplain() {
    return complaints_ < MostComplaints && ++complaints_ > 0;
}

std::unique_ptr<IGDL90Message> GDL90Parser::createParsedMessage() {
    const MessageBytes bytes(buffer_.data() + 1, size_ > LeastStored ? size_ - LeastStored : 0);
    const IGDL90Message::Type type = findMessageType(bytes, size_);
    std::unique_ptr<IGDL90Message> message = std::move(spares_[static_cast<size_t>(type)]);
    if (!message)
        message = createMessage(type);
    message->readFromRaw(bytes);
    return message;
}

void GDL90Parser::reuse(std::unique_ptr<IGDL90Message> message) {
    if (message)
        spares_[static_cast<size_t>(message->getType())] = std::move(message);
}

} // namespace skyvane
