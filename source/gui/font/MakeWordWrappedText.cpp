#include "gui/font/MakeWordWrappedText.h"

#include "gui/glyphs/WordWrap.h"

namespace skyvane {

namespace {

class WidthInFont : public ITextWidth {
public:
    explicit WidthInFont(const irr::gui::IGUIFont& font) : font_(font) {}
    unsigned widthOf(const std::wstring& line) const override { return font_.getDimension(line.c_str()).Width; }

private:
    const irr::gui::IGUIFont& font_;
};

} // namespace

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
