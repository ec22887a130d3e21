#pragma once

#include "gui/font/CachedText.h"

#include <irrlicht.h>

namespace skyvane {

class FlexibleFont;

/// A short text on a dial, centred in a box whose size decides its own. The size follows a sample text, so that a
/// changing number keeps its height; a text that is larger than the sample is shrunk into the box. Allocates nothing
/// while the text is no longer than any before.
class DialText {
public:
    /// Screen coordinates, full viewport. Nothing without a font. Without a sample the text decides.
    void draw(FlexibleFont* font, const wchar_t* text, const wchar_t* sample, const irr::core::rect<int>& box,
              irr::video::SColor color);

    /// The two steps of it, for who must know the size before: lays the text out for a room and gives its size there;
    /// then draws it in the middle of a box.
    irr::core::dimension2d<int> set(FlexibleFont* font, const wchar_t* text, const wchar_t* sample,
                                    const irr::core::dimension2d<int>& room, irr::video::SColor color);
    void draw(const irr::core::rect<int>& box) const;

private:
    float calcScale() const;

    CachedText text_;
    FlexibleFont* font_ = nullptr;
    const wchar_t* sample_ = nullptr;
    irr::core::dimension2d<int> room_{0, 0};
    float sampleScale_ = 1.0f;
    float scale_ = 1.0f;
};

/// A text as large as its box allows, for what is drawn now and then: it may allocate. Nothing in an empty box.
void drawFittedText(FlexibleFont* font, const wchar_t* text, const irr::core::rect<int>& box, irr::video::SColor color);

} // namespace skyvane
