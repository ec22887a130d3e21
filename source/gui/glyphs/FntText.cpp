#include "gui/glyphs/FntText.h"

#include "gui/glyphs/FntLine.h"
#include <algorithm>

namespace skyvane {

namespace {

constexpr int largestPage = 16384;
constexpr int largestMeasure = 4096;
constexpr int lastCharacter = 0x10FFFF;
constexpr size_t mostCharacters = 65536;
constexpr size_t mostKernings = 262144;
constexpr int absent = -1;

bool isWithin(int value, int lowest, int highest) {
    return value >= lowest && value <= highest;
}

bool isCharacter(int code) {
    return isWithin(code, 0, lastCharacter);
}

/// Bare name of a path in either style; empty for what names no file.
std::string bareFileName(const std::string& path) {
    const size_t separator = path.find_last_of("/\\");
    const std::string name = separator == std::string::npos ? path : path.substr(separator + 1);
    const bool usable = name != "." && name != ".." && name.find('\0') == std::string::npos;
    return usable ? name : std::string();
}

class FntReader {
public:
    FntText font;

    void read(const FntLine& line) {
        if (line.tag() == "char")
            readCharacter(line);
        else if (line.tag() == "kerning")
            readKerning(line);
        else if (line.tag() == "page")
            readPage(line);
        else if (line.tag() == "common")
            readCommon(line);
        else if (line.tag() == "info")
            font.definition.size = line.number("size", 0);
    }

    void finish() {
        if (font.pageFile.empty())
            refuse("no page 0");
        const auto space = font.definition.characters.find(L' ');
        if (space == font.definition.characters.end())
            refuse("no space glyph");
        else if (space->second.xadvance <= 0)
            refuse("the space glyph has no advance");
        if (font.definition.lineHeight <= 0)
            refuse("no line height");
    }

    bool isRefused() const { return !font.error.empty(); }

private:
    /// The first trouble is the one to tell.
    void refuse(const std::string& why) {
        if (font.error.empty())
            font.error = why;
    }

    void readCommon(const FntLine& line) {
        font.definition.lineHeight = line.number("lineHeight", 0);
        font.definition.base = line.number("base", 0);
        if (!isWithin(font.definition.lineHeight, 1, largestMeasure) ||
            !isWithin(font.definition.base, 0, largestMeasure))
            refuse("line measures out of range");
    }

    void readPage(const FntLine& line) {
        const std::string_view* file = line.find("file");
        if (line.number("id", absent) == 0 && file)
            font.pageFile = bareFileName(std::string(*file));
    }

    void readCharacter(const FntLine& line) {
        FontCharacter glyph;
        glyph.id = line.number("id", absent);
        if (!isCharacter(glyph.id))
            return;
        glyph.x = line.number("x", 0);
        glyph.y = line.number("y", 0);
        glyph.width = line.number("width", 0);
        glyph.height = line.number("height", 0);
        glyph.xoffset = line.number("xoffset", 0);
        glyph.yoffset = line.number("yoffset", 0);
        glyph.xadvance = line.number("xadvance", 0);
        for (int coordinate : {glyph.x, glyph.y, glyph.width, glyph.height})
            if (!isWithin(coordinate, 0, largestPage))
                refuse("glyph " + std::to_string(glyph.id) + " lies outside of any page");
        for (int measure : {glyph.xoffset, glyph.yoffset, glyph.xadvance})
            if (!isWithin(measure, -largestMeasure, largestMeasure))
                refuse("glyph " + std::to_string(glyph.id) + " has measures out of range");
        if (font.definition.characters.size() >= mostCharacters)
            refuse("too many glyphs");
        if (!isRefused())
            font.definition.characters[static_cast<wchar_t>(glyph.id)] = glyph;
    }

    void readKerning(const FntLine& line) {
        const int first = line.number("first", absent);
        const int second = line.number("second", absent);
        const int amount = line.number("amount", 0);
        if (!isCharacter(first) || !isCharacter(second))
            return;
        if (!isWithin(amount, -largestMeasure, largestMeasure))
            refuse("kerning out of range");
        if (font.definition.kernings.size() >= mostKernings)
            refuse("too many kerning pairs");
        const wchar_t pair[] = {static_cast<wchar_t>(first), static_cast<wchar_t>(second)};
        if (!isRefused())
            font.definition.kernings[std::wstring(pair, 2)] = amount;
    }
};

} // namespace

FntText parseFntText(const char* bytes, size_t count) {
    FntReader reader;
    FntLine record;
    const char* const end = bytes + count;
    for (const char* line = bytes; line != end && !reader.isRefused();) {
        const char* const lineEnd = std::find(line, end, '\n');
        record.parse(std::string_view(line, static_cast<size_t>(lineEnd - line)));
        reader.read(record);
        line = lineEnd == end ? end : lineEnd + 1;
    }
    reader.finish();
    return std::move(reader.font);
}

} // namespace skyvane
