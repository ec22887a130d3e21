#pragma once

#include "core/ini/ReadValue.h"

#include <cstdint>
#include <string>

namespace skyvane {

class IniFile;

/// A colour of a panel's section: the keys <name>.R, .G, .B and .A, each 0 to 255. Channels are 0xAARRGGBB.
///
/// A channel that is missing or no number takes the fallback's; one out of range is brought into it. Creates no keys.
uint32_t readColor(IniFile& ini, const std::string& section, const std::string& name, uint32_t fallback);
void writeColor(IniFile& ini, const std::string& section, const std::string& name, uint32_t color);

} // namespace skyvane
