#include "displays/instruments/DialText.h"

#include "gui/font/FlexibleFont.h"

namespace skyvane {

void DialText::draw(FlexibleFont* font, const wchar_t* text, const wchar_t* sample, const irr::core::rect<int>& box,
                    irr::video::SColor color) {
    const irr::core::dimension2d<int> size = box.getSize();
    if (!font || size.Width < 1 || size.Height < 1)
        return;
    if (font != font_ || sample != sample_ || size != boxSize_) {
        font_ = font;
        sample_ = sample;
        boxSize_ = size;
        scale_ = font->calculateOptimalScale(sample,
                                             {static_cast<irr::u32>(size.Width), static_cast<irr::u32>(size.Height)});
    }
    text_.set(font, text, color, true);
    text_.draw(box, {scale_, scale_}, true, true);
}

} // namespace skyvane
