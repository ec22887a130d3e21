#include "gui/font/MakeShortenedText.h"

#include "gui/font/WidthInFont.h"
#include "gui/glyphs/ShortenText.h"

namespace skyvane {

std::wstring makeShortenedText(const std::wstring& line, unsigned width, irr::gui::IGUIFont* font) {
    return font ? shortenText(line, width, WidthInFont(*font)) : line;
}

} // namespace skyvane
