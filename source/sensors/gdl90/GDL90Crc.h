#pragma once

#include <cstddef>
#include <cstdint>

namespace skyvane {

/// The check sequence of GDL 90 over a message: from 0, for each byte crc = table[crc >> 8] ^ (crc << 8) ^ byte, with
/// the table of the polynomial 0x1021. Four bytes a step, which gives the same as one by one.
uint16_t calcGDL90Crc(const uint8_t* bytes, size_t count);

} // namespace skyvane
