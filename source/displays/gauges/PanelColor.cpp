#include "displays/gauges/PanelColor.h"

#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"

#include <algorithm>
#include <utility>

namespace skyvane {

namespace {

constexpr std::pair<const char*, unsigned> channels[] = {{".R", 16}, {".G", 8}, {".B", 0}, {".A", 24}};

} // namespace

uint32_t readColor(IniFile& ini, const std::string& section, const std::string& name, uint32_t fallback) {
    uint32_t color = 0;
    for (const auto& [suffix, shift] : channels) {
        const int standard = static_cast<int>((fallback >> shift) & 0xffu);
        const int value = toInt(readValue(ini, section, name + suffix), standard);
        color |= static_cast<uint32_t>(std::clamp(value, 0, 255)) << shift;
    }
    return color;
}

void writeColor(IniFile& ini, const std::string& section, const std::string& name, uint32_t color) {
    for (const auto& [suffix, shift] : channels)
        ini.set(section, name + suffix, toText(static_cast<int>((color >> shift) & 0xffu)));
}

} // namespace skyvane
