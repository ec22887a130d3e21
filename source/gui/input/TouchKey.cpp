#include "gui/input/TouchKey.h"

#include "core/ICommonAppContext.h"
#include "core/time/Time.h"
#include "displays/drawing/Drawer2D.h"
#include "gui/font/FlexibleFont.h"
#include "gui/input/KeyEvents.h"
#include "gui/skin/Skin.h"

#include <algorithm>

namespace skyvane {

using irr::core::recti;
using irr::video::SColor;

namespace {

const SColor black(0xff000000);
constexpr float labelShare = 0.74f; ///< Of the key's height, as the height of a line.
constexpr int imageShare = 60;      ///< Per cent of the key's shorter side.

SColor times(SColor color, float factor, irr::u32 alpha) {
    const auto scaled = [factor](irr::u32 part) { return static_cast<irr::u32>(static_cast<float>(part) * factor); };
    return SColor(alpha, scaled(color.getRed()), scaled(color.getGreen()), scaled(color.getBlue()));
}

recti inset(recti rect, int by) {
    rect.UpperLeftCorner += irr::core::position2di(by, by);
    rect.LowerRightCorner -= irr::core::position2di(by, by);
    return rect;
}

bool isLowerCaseLetter(wchar_t character) {
    return character >= L'a' && character <= L'z';
}

} // namespace

TouchKey::TouchKey(ICommonAppContext* context, wchar_t character, wchar_t shiftCharacter, irr::EKEY_CODE keyCode,
                   irr::core::rect<int> rect, irr::video::ITexture* texture)
    : context_(context), character_(character), shiftCharacter_(shiftCharacter), keyCode_(keyCode), rect_(rect),
      texture_(EngineRef<irr::video::ITexture>::share(texture)) {}

/// Neighbours share an edge, which belongs to one of them.
bool TouchKey::isAt(irr::core::position2di position) const {
    return position.X >= rect_.UpperLeftCorner.X && position.X < rect_.LowerRightCorner.X &&
           position.Y >= rect_.UpperLeftCorner.Y && position.Y < rect_.LowerRightCorner.Y;
}

bool TouchKey::processMouseEvent(const irr::SEvent::SMouseInput& mouse, bool* inside) {
    *inside = isAt({mouse.X, mouse.Y});
    KeyPress::Kind kind = KeyPress::Kind::Move;
    if (mouse.Event == irr::EMIE_LMOUSE_PRESSED_DOWN)
        kind = KeyPress::Kind::Press;
    else if (mouse.Event == irr::EMIE_LMOUSE_LEFT_UP)
        kind = KeyPress::Kind::Release;
    else if (mouse.Event != irr::EMIE_MOUSE_MOVED)
        return false;
    const bool changed = press_.process(kind, *inside, mouse.ButtonStates & irr::EMBSM_LEFT);
    if (changed && press_.isPressed())
        repeat_.press(Secs());
    return changed;
}

irr::SEvent TouchKey::getEvent() const {
    return keyEvent(keyCode_, shiftPressed_ ? shiftCharacter_ : character_, press_.isPressed(), {shiftPressed_, false});
}

void TouchKey::setOverrideTexture(irr::video::ITexture* texture) {
    overrideTexture_ = EngineRef<irr::video::ITexture>::share(texture);
}

bool TouchKey::render(FlexibleFont* font, bool shift, SColor color) {
    drawBody(color);
    drawFace(font, shift, color);
    return isRepeatDue();
}

bool TouchKey::isRepeatDue() {
    return press_.isPressed() && repeat_.takeDue(Secs());
}

void TouchKey::drawBody(SColor color) const {
    const SColor body = press_.isPressed() ? times(color, 0.75f, 255) : color;
    const SColor frame = times(body, 0.5f, body.getAlpha());
    const int line = std::max(2, rect_.getHeight() / 30);
    const auto* skin = dynamic_cast<Skin*>(context_->getIrrlichtDevice()->getGUIEnvironment()->getSkin());
    if (!skin)
        return;
    skin->drawRow(inset(rect_, 1), nullptr, frame);
    skin->drawRow(inset(rect_, 1 + line), nullptr, body);
}

void TouchKey::drawFace(FlexibleFont* font, bool shift, SColor color) {
    irr::video::ITexture* image = overrideTexture_ ? overrideTexture_.get() : texture_.get();
    if (!image)
        return drawCharacters(font, shift, times(color, press_.isPressed() ? 0.375f : 0.5f, 255));
    const int side = std::min(rect_.getWidth(), rect_.getHeight()) * imageShare / 100;
    const irr::core::position2di corner = rect_.getCenter() - irr::core::position2di(side / 2, side / 2);
    context_->getDrawer()->Draw(image, recti(corner, irr::core::dimension2di(side, side)));
}

/// With shift the key's shift character alone; else its character, with a small shift character where that isn't just
/// the capital letter.
void TouchKey::drawCharacters(FlexibleFont* font, bool shift, SColor frame) {
    if (!font)
        return;
    const wchar_t shown[2] = {shift ? shiftCharacter_ : character_, 0};
    const float lineHeight = static_cast<float>(std::max(1, font->getFontDefintion().lineHeight));
    const float scale = labelShare * static_cast<float>(rect_.getHeight()) / lineHeight;
    label_.set(font, shown, black);
    label_.draw(rect_, {scale, scale}, true, true);
    if (shift || isLowerCaseLetter(character_) || shiftCharacter_ == character_)
        return;
    const wchar_t other[2] = {shiftCharacter_, 0};
    recti quarter = inset(rect_, rect_.getHeight() / 16);
    quarter.LowerRightCorner = quarter.getCenter();
    const float small = font->calculateOptimalScale(other, irr::core::dimension2du(quarter.getSize()));
    corner_.set(font, other, frame);
    corner_.draw(quarter, {small, small}, true, true);
}

} // namespace skyvane
