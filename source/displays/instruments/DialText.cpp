#include "displays/instruments/DialText.h"

#include "gui/font/FlexibleFont.h"

#include <algorithm>

namespace skyvane {

void DialText::draw(FlexibleFont* font, const wchar_t* text, const wchar_t* sample, const irr::core::rect<int>& box,
                    irr::video::SColor color) {
    const irr::core::dimension2d<int> size = box.getSize();
    if (!font || size.Width < 1 || size.Height < 1)
        return;
    text_.set(font, text, color, true);
    if (font != font_ || sample != sample_ || size != boxSize_) {
        font_ = font;
        sample_ = sample;
        boxSize_ = size;
        const irr::core::dimension2d<irr::u32> target(static_cast<irr::u32>(size.Width),
                                                      static_cast<irr::u32>(size.Height));
        sampleScale_ = font->calculateOptimalScale(sample ? sample : L"", target);
    }
    const float scale = fittingScale();
    text_.draw(box, {scale, scale}, true, true);
}

float DialText::fittingScale() const {
    const irr::core::dimension2d<irr::u32> natural = text_.getDimension();
    if (natural.Width == 0 || natural.Height == 0)
        return sampleScale_;
    const float fitting = std::min(static_cast<float>(boxSize_.Width) / static_cast<float>(natural.Width),
                                   static_cast<float>(boxSize_.Height) / static_cast<float>(natural.Height));
    return sample_ ? std::min(fitting, sampleScale_) : fitting;
}

} // namespace skyvane
