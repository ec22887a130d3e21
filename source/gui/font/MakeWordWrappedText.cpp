#include "gui/font/MakeWordWrappedText.h"

#include "gui/font/WidthInFont.h"

namespace skyvane {

std::wstring makeWordWrappedText(const std::wstring& text, unsigned width, irr::gui::IGUIFont* font, bool hyphenate,
                                 bool trimLineEnds) {
    if (!font)
        return text;
    WordWrapOptions options;
    options.hyphenate = hyphenate;
    options.trimLineEnds = trimLineEnds;
    return wrapWords(text, width, WidthInFont(*font), options);
}

} // namespace skyvane
