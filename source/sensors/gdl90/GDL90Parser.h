#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace skyvane {

/// Finds the frames in a stream of bytes, checks them and makes messages of them.
///
///     for (byte of the datagram)
///         if (parser.parse(byte))
///             take(parser.createParsedMessage());
///
/// A frame may go on in the next datagram. After a frame's end the next one begins with a flag of its own. Bad frames
/// are told on the error stream, the first 200 of them, and dropped. Nothing is allocated while messages come back by
/// reuse(). One thread only.
class GDL90Parser {
public:
    static constexpr uint8_t Flag = 0x7E;
    static constexpr uint8_t Escape = 0x7D;
    static constexpr uint8_t EscapeMask = 0x20;
    static constexpr size_t BufferBytes = 65536;

    /// True when this byte completed a checked frame; it stands until the next call. A check sequence of 0 isn't
    /// checked.
    bool parse(unsigned char byte) {
        if (escaped_) {
            escaped_ = false;
            store(byte ^ EscapeMask);
            return false;
        }
        if (byte == Flag)
            return atFlag();
        if (count_ == 0)
            return false;
        if (byte == Escape)
            escaped_ = true;
        else
            store(byte);
        return false;
    }
    /// The message of the frame; an UnknownGDL90Message for an id that isn't known and for a frame that is too short.
    std::unique_ptr<IGDL90Message> createParsedMessage();
    /// Takes a message that isn't needed any more, for a later createParsedMessage() to fill. Null does nothing.
    void reuse(std::unique_ptr<IGDL90Message> message);

    /// The frame with both flags and the check sequence, its escapes removed.
    const uint8_t* getRawData() const { return buffer_.data(); }
    size_t getRawDataSize() const { return size_; }

private:
    void store(unsigned byte) {
        buffer_[count_++] = static_cast<uint8_t>(byte);
        if (count_ == BufferBytes)
            dropOversize();
    }
    bool atFlag();
    bool isChecked();
    void dropOversize();
    bool shallComplain();

    std::array<uint8_t, BufferBytes> buffer_;
    size_t count_ = 0; ///< Of the frame that comes in; 0 outside of frames.
    size_t size_ = 0;  ///< Of the last whole frame.
    bool escaped_ = false;
    int complaints_ = 0;
    std::array<std::unique_ptr<IGDL90Message>, IGDL90Message::TypeCount> spares_;
};

} // namespace skyvane
