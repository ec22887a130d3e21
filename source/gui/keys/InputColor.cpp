#include "gui/keys/InputColor.h"

#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr std::uint32_t standardColor = 0xA000FF00;

} // namespace

std::uint32_t readInputColor(IniFile& config) {
    const auto part = [&config](const char* key, int shift) {
        const std::uint32_t standard = standardColor >> shift & 0xffu;
        const std::uint32_t value =
            config.isAvailable("", key)
                ? static_cast<std::uint32_t>(std::clamp(toDouble(config.get("", key), standard), 0.0, 255.0))
                : standard;
        return value << shift;
    };
    return part("inputColor.A", 24) | part("inputColor.R", 16) | part("inputColor.G", 8) | part("inputColor.B", 0);
}

} // namespace skyvane
