#pragma once

#include "sensors/FormText.h"
#include "sensors/gdl90/GDL90FrameWriter.h"
#include "sensors/gdl90/GDL90Parser.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

namespace skyvane {

inline Bytes frameOf(const Bytes& message) {
    Bytes frame;
    appendGDL90Frame(frame, message.data(), message.size());
    return frame;
}

/// The messages that a stream gives.
inline std::vector<std::unique_ptr<IGDL90Message>> parseAll(GDL90Parser& parser, const Bytes& stream) {
    std::vector<std::unique_ptr<IGDL90Message>> messages;
    for (const uint8_t byte : stream)
        if (parser.parse(byte))
            messages.push_back(parser.createParsedMessage());
    return messages;
}

/// The message of a whole frame as its class; null for another one.
template <class T>
std::unique_ptr<T> parseAs(const Bytes& message) {
    GDL90Parser parser;
    auto messages = parseAll(parser, frameOf(message));
    T* found = messages.size() == 1 ? dynamic_cast<T*>(messages.front().get()) : nullptr;
    if (found)
        messages.front().release();
    return std::unique_ptr<T>(found);
}

inline Bytes operator+(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

inline Bytes floatBytes(float value) {
    Bytes bytes(sizeof(value));
    std::memcpy(bytes.data(), &value, sizeof(value));
    return bytes;
}

inline Bytes big16(int value) {
    return {static_cast<uint8_t>(value >> 8), static_cast<uint8_t>(value)};
}

inline Bytes big24(int value) {
    return Bytes{static_cast<uint8_t>(value >> 16)} + big16(value);
}

/// A report of id 10 (own ship) or 20 (traffic) at a place in units of 180 / 2^23 degrees.
struct ReportFields {
    uint8_t id = 20;
    uint8_t addressType = 0;
    int address = 0xABCDEF;
    int latitude = 0x1F0000, longitude = -0x100000;
    int altitude = 0x0A0; // 3000 feet
    uint8_t misc = 9;     // airborne, true track
    uint8_t accuracy = 0x88;
    int velocity = 120;
    int climb = 0;
    uint8_t track = 64;

    Bytes bytes() const {
        return Bytes{id, addressType} + big24(address) + big24(latitude) + big24(longitude) +
               Bytes{static_cast<uint8_t>(altitude >> 4),
                     static_cast<uint8_t>((altitude & 15) << 4 | misc),
                     accuracy,
                     static_cast<uint8_t>(velocity >> 4),
                     static_cast<uint8_t>((velocity & 15) << 4 | ((climb >> 8) & 15)),
                     static_cast<uint8_t>(climb),
                     track,
                     1,
                     'N',
                     '8',
                     '2',
                     '5',
                     'V',
                     ' ',
                     ' ',
                     ' ',
                     0};
    }
};

/// An attitude of Stratux, in tenths of degrees; heading 0x7FFF is none.
inline Bytes stratuxBytes(int roll, int pitch, int heading) {
    return Bytes{0x4C, 0x45, 1, 1} + big16(roll) + big16(pitch) + big16(heading) + big16(10) + big16(-30) + big16(10) +
           big16(95) + big16(8000) + big16(500) + big16(0);
}

/// The head of a Talos message and its values.
inline Bytes talosBytes(uint8_t id, const std::vector<float>& values, uint8_t valid = 1) {
    Bytes bytes = Bytes{id, valid} + Bytes(15);
    for (const float value : values)
        bytes = bytes + floatBytes(value);
    return bytes;
}

/// A Talos position at 10:11:12.
inline Bytes talosGpsBytes(float latitude, float longitude, float track, uint8_t hasFix = 1) {
    Bytes bytes = talosBytes(0x42, {latitude, longitude, 1000.0f, 51.4444444f, track});
    const Bytes head{hasFix, 9, 10, 11, 12, 100, 1};
    std::copy(head.begin(), head.end(), bytes.begin() + 2);
    return bytes;
}

} // namespace skyvane
