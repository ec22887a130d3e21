#include "displays/gauges/PanelOptions.h"

#include "core/ini/IniFile.h"
#include "core/text/Utf8.h"
#include "displays/gauges/PanelColor.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr uint32_t opaqueBlack = 0xff000000;

bool isColor(EditorValueType type) {
    return type == EditorValueType::COLOR_RGB || type == EditorValueType::COLOR_RGBA;
}

uint32_t standardColor(const EditorRow& row) {
    const EditorColor color = EditorColor::parse(encodeUtf8(row.standard));
    const auto shifted = [](int channel, unsigned by) { return static_cast<uint32_t>(channel) << by; };
    return shifted(color.alpha, 24) | shifted(color.red, 16) | shifted(color.green, 8) | shifted(color.blue, 0);
}

std::string textOf(uint32_t color, bool withAlpha) {
    const auto channel = [color](unsigned shift) { return static_cast<int>((color >> shift) & 0xffu); };
    return EditorColor{channel(16), channel(8), channel(0), channel(24)}.toText(withAlpha);
}

} // namespace

IniFile readPanelOptions(const std::vector<EditorRow>& rows, IniFile& ini, const std::string& section) {
    IniFile options;
    for (const EditorRow& row : rows) {
        const std::string key = encodeUtf8(row.key);
        if (isColor(row.type))
            options.set(
                "", key,
                textOf(readColor(ini, section, key, standardColor(row)), row.type == EditorValueType::COLOR_RGBA));
        else if (ini.isAvailable(section, key))
            options.set("", key, ini.get(section, key));
    }
    return options;
}

void writePanelOptions(const std::vector<EditorRow>& rows, IniFile& options, IniFile& ini, const std::string& section) {
    for (const EditorRow& row : rows) {
        const std::string key = encodeUtf8(row.key);
        if (!options.isAvailable("", key))
            continue;
        if (!isColor(row.type)) {
            ini.set(section, key, options.get("", key));
            continue;
        }
        EditorColor color = EditorColor::parse(options.get("", key));
        const uint32_t former = readColor(ini, section, key, opaqueBlack);
        if (row.type == EditorValueType::COLOR_RGB)
            color.alpha = static_cast<int>(former >> 24);
        writeColor(ini, section, key,
                   static_cast<uint32_t>(color.alpha) << 24 | static_cast<uint32_t>(color.red) << 16 |
                       static_cast<uint32_t>(color.green) << 8 | static_cast<uint32_t>(color.blue));
    }
}

} // namespace skyvane
