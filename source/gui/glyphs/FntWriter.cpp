#include "gui/glyphs/FntWriter.h"

#include <locale>
#include <sstream>

namespace skyvane {

namespace {

void writeCharacter(std::ostream& out, const FontCharacter& glyph) {
    out << "char id=" << glyph.id << " x=" << glyph.x << " y=" << glyph.y << " width=" << glyph.width
        << " height=" << glyph.height << " xoffset=" << glyph.xoffset << " yoffset=" << glyph.yoffset
        << " xadvance=" << glyph.xadvance << " page=0 chnl=8\n";
}

} // namespace

std::string writeFntText(const FontDefinition& font, const FntPage& page) {
    std::ostringstream out;
    out.imbue(std::locale::classic());
    out << "info face=\"" << page.face << "\" size=" << font.size << " bold=0 italic=0 charset=\"\" unicode=1"
        << " stretchH=100 smooth=1 aa=1 padding=" << page.spread << ',' << page.spread << ',' << page.spread << ','
        << page.spread << " spacing=0,0\n";
    out << "common lineHeight=" << font.lineHeight << " base=" << font.base << " scaleW=" << page.size.Width
        << " scaleH=" << page.size.Height << " pages=1 packed=0\n";
    out << "page id=0 file=\"" << page.file << "\"\n";
    out << "chars count=" << font.characters.size() << '\n';
    for (const auto& entry : font.characters)
        writeCharacter(out, entry.second);
    out << "kernings count=" << font.kernings.size() << '\n';
    for (const auto& entry : font.kernings)
        out << "kerning first=" << static_cast<int>(entry.first[0]) << " second=" << static_cast<int>(entry.first[1])
            << " amount=" << entry.second << '\n';
    return out.str();
}

} // namespace skyvane
