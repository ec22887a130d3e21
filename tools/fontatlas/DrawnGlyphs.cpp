#include "fontatlas/DrawnGlyphs.h"

#include <sstream>

namespace skyvane {

namespace {

constexpr int largest = 4000;

bool readPoint(const std::string& word, DrawnGlyph::Point& point) {
    std::istringstream numbers(word);
    char comma = 0;
    return numbers >> point.X >> comma >> point.Y && comma == ',' && std::abs(point.X) <= largest &&
           std::abs(point.Y) <= largest;
}

bool readContours(std::istream& words, DrawnGlyph& glyph) {
    glyph.contours.emplace_back();
    for (std::string word; words >> word;) {
        DrawnGlyph::Point point;
        if (word == "/")
            glyph.contours.emplace_back();
        else if (readPoint(word, point))
            glyph.contours.back().push_back(point);
        else
            return false;
    }
    for (const auto& contour : glyph.contours)
        if (contour.size() < 3)
            return false;
    return true;
}

} // namespace

std::map<wchar_t, DrawnGlyph> parseDrawnGlyphs(const std::string& text) {
    std::map<wchar_t, DrawnGlyph> glyphs;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line.substr(0, line.find('#')));
        unsigned code = 0;
        DrawnGlyph glyph;
        if (words >> std::hex >> code >> std::dec >> glyph.advance && readContours(words, glyph))
            glyphs[static_cast<wchar_t>(code)] = glyph;
    }
    return glyphs;
}

} // namespace skyvane
