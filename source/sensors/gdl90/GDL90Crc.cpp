#include "sensors/gdl90/GDL90Crc.h"

#include <array>

namespace skyvane {
namespace {

constexpr unsigned Polynomial = 0x1021;

using Table = std::array<uint16_t, 256>;

constexpr uint16_t timesX8(unsigned value) {
    for (int bit = 0; bit < 8; ++bit)
        value = (value << 1) ^ ((value & 0x8000u) != 0 ? Polynomial : 0u);
    return static_cast<uint16_t>(value);
}

/// Row k: the remainder of byte * x^(16 + 8k), so that row 0 is the plain table.
constexpr std::array<Table, 4> makeTables() {
    std::array<Table, 4> tables{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        uint16_t value = timesX8(byte << 8);
        for (auto& table : tables) {
            table[byte] = value;
            value = timesX8(value);
        }
    }
    return tables;
}

constexpr std::array<Table, 4> tables = makeTables();

} // namespace

uint16_t calcGDL90Crc(const uint8_t* bytes, size_t count) {
    unsigned crc = 0;
    for (; count >= 4; count -= 4, bytes += 4)
        crc = static_cast<unsigned>(tables[3][crc >> 8] ^ tables[2][crc & 0xFFu] ^ tables[1][bytes[0]] ^
                                    tables[0][bytes[1]] ^ (bytes[2] << 8 | bytes[3]));
    for (; count > 0; --count, ++bytes)
        crc = tables[0][crc >> 8] ^ ((crc << 8) & 0xFFFFu) ^ *bytes;
    return static_cast<uint16_t>(crc);
}

} // namespace skyvane
