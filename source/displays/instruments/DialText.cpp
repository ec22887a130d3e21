#include "displays/instruments/DialText.h"

#include "gui/font/FlexibleFont.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

void DialText::draw(FlexibleFont* font, const wchar_t* text, const wchar_t* sample, const irr::core::rect<int>& box,
                    irr::video::SColor color) {
    const irr::core::dimension2d<int> size = set(font, text, sample, box.getSize(), color);
    if (size.Width > 0)
        draw(box);
}

irr::core::dimension2d<int> DialText::set(FlexibleFont* font, const wchar_t* text, const wchar_t* sample,
                                          const irr::core::dimension2d<int>& room, irr::video::SColor color) {
    if (!font || room.Width < 1 || room.Height < 1)
        return {0, 0};
    text_.set(font, text, color, true);
    if (font != font_ || sample != sample_ || room != room_) {
        font_ = font;
        sample_ = sample;
        room_ = room;
        const irr::core::dimension2d<irr::u32> target(static_cast<irr::u32>(room.Width),
                                                      static_cast<irr::u32>(room.Height));
        sampleScale_ = sample ? font->calculateOptimalScale(sample, target) : 1.0f;
    }
    scale_ = calcScale();
    const irr::core::dimension2d<irr::u32> natural = text_.getDimension();
    return {static_cast<int>(std::ceil(static_cast<float>(natural.Width) * scale_)),
            static_cast<int>(std::ceil(static_cast<float>(natural.Height) * scale_))};
}

void DialText::draw(const irr::core::rect<int>& box) const {
    text_.draw(box, {scale_, scale_}, true, true);
}

float DialText::calcScale() const {
    const irr::core::dimension2d<irr::u32> natural = text_.getDimension();
    if (natural.Width == 0 || natural.Height == 0)
        return sampleScale_;
    const float fitting = std::min(static_cast<float>(room_.Width) / static_cast<float>(natural.Width),
                                   static_cast<float>(room_.Height) / static_cast<float>(natural.Height));
    return sample_ ? std::min(fitting, sampleScale_) : fitting;
}

void drawFittedText(FlexibleFont* font, const wchar_t* text, const irr::core::rect<int>& box,
                    irr::video::SColor color) {
    if (box.getWidth() < 1 || box.getHeight() < 1)
        return;
    const irr::core::vector2d<float> before = font->getDefaultScale();
    const float scale = font->calculateOptimalScale(
        text, {static_cast<irr::u32>(box.getWidth()), static_cast<irr::u32>(box.getHeight())});
    font->setDefaultScale({scale, scale});
    font->draw(text, box, color, true, true);
    font->setDefaultScale(before);
}

} // namespace skyvane
