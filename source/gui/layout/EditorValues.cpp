#include "gui/layout/EditorValues.h"

#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "core/text/Utf8.h"

namespace skyvane {
namespace {

struct Channel {
    const char* suffix;
    int EditorColor::*value;
};
constexpr Channel channels[] = {
    {".R", &EditorColor::red}, {".G", &EditorColor::green}, {".B", &EditorColor::blue}, {".A", &EditorColor::alpha}};

bool isColor(const EditorRow& row) {
    return row.type == EditorValueType::COLOR_RGB || row.type == EditorValueType::COLOR_RGBA;
}

bool hasChannels(const IniFile& document, const std::string& key) {
    return document.isAvailable("", key + ".R");
}

std::string readChannels(IniFile& document, const EditorRow& row, const std::string& key) {
    EditorColor color = EditorColor::parse(encodeUtf8(row.standard));
    for (const Channel& channel : channels)
        if (document.isAvailable("", key + channel.suffix))
            color.*channel.value = toInt(document.get("", key + channel.suffix), color.*channel.value);
    return EditorColor::parse(color.toText(true)).toText(row.type == EditorValueType::COLOR_RGBA);
}

/// A row without alpha leaves that of the document.
void writeChannels(IniFile& document, const EditorRow& row, const std::string& key, const std::string& value) {
    const EditorColor color = EditorColor::parse(value);
    for (const Channel& channel : channels)
        if (channel.value != &EditorColor::alpha || row.type == EditorValueType::COLOR_RGBA)
            document.set("", key + channel.suffix, toText(color.*channel.value));
}

} // namespace

std::optional<std::string> readEditorValue(IniFile& document, const EditorRow& row) {
    const std::string key = encodeUtf8(row.key);
    if (document.isAvailable("", key))
        return document.get("", key);
    if (isColor(row) && hasChannels(document, key))
        return readChannels(document, row, key);
    return std::nullopt;
}

void writeEditorValue(IniFile& document, const EditorRow& row, const std::string& value) {
    const std::string key = encodeUtf8(row.key);
    const bool isText = !isColor(row) || document.isAvailable("", key) || !hasChannels(document, key);
    const bool isChannels = isColor(row) && (hasChannels(document, key) || !document.isAvailable("", key));
    if (isText)
        document.set("", key, value);
    if (isChannels)
        writeChannels(document, row, key, value);
}

} // namespace skyvane
