#pragma once

#include <cstdint>

namespace skyvane {

class IniFile;

/// The colour of on-screen input that a configuration asks for, 0xAARRGGBB: "inputColor.R" and so on of its unnamed
/// section, each of which has a standard value and is brought into 0 to 255.
std::uint32_t readInputColor(IniFile& config);

} // namespace skyvane
