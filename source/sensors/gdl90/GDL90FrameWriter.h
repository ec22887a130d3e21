#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace skyvane {

/// Appends a message as a frame: flag, the message and its check sequence with 0x7D and 0x7E escaped, flag.
/// For tools and tests; GDL90Parser is the reader.
void appendGDL90Frame(std::vector<uint8_t>& out, const uint8_t* message, size_t length);

} // namespace skyvane
