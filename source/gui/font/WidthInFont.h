#pragma once

#include "gui/glyphs/WordWrap.h"

#include <irrlicht.h>

namespace skyvane {

/// How wide a line is in a font at its default scale. The font outlives it.
class WidthInFont : public ITextWidth {
public:
    explicit WidthInFont(const irr::gui::IGUIFont& font) : font_(font) {}
    unsigned widthOf(const std::wstring& line) const override { return font_.getDimension(line.c_str()).Width; }

private:
    const irr::gui::IGUIFont& font_;
};

} // namespace skyvane
