#include "core/ini/IniEscapes.h"

#include <cstring>

namespace skyvane {

namespace {

// Each byte of `plain` is written as a backslash and the byte of `coded` in the same place.
const char plain[] = "\n\\#; \t[]=";
const char coded[] = "n\\#; t012";

char translate(char byte, const char* from, const char* to) {
    const char* place = byte ? std::strchr(from, byte) : nullptr;
    return place ? to[place - from] : '\0';
}

} // namespace

std::string escapeIniStrings(const std::string& text) {
    std::string result;
    result.reserve(text.size() + 8);
    for (const char byte : text) {
        const char code = translate(byte, plain, coded);
        if (code)
            result += '\\';
        result += code ? code : byte;
    }
    return result;
}

std::string unescapeIniStrings(const std::string& text) {
    std::string result;
    result.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            result += text[i];
            continue;
        }
        if (++i == text.size())
            break;
        const char byte = translate(text[i], coded, plain);
        result += byte ? byte : text[i];
    }
    return result;
}

} // namespace skyvane
