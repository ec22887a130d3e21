#include "gui/input/WipeInput.h"

#include "core/ICommonAppContext.h"
#include "displays/drawing/Drawer2D.h"
#include "gui/font/FlexibleFont.h"
#include "gui/input/KeyEvents.h"
#include "gui/keys/EditBoxId.h"
#include "gui/keys/KeyCodes.h"
#include "gui/keys/KeyboardLayout.h"
#include "gui/skin/Skin.h"

#include <algorithm>
#include <cwchar>

namespace skyvane {

using irr::core::recti;
using irr::video::SColor;

namespace {

constexpr int keyRows = 5; ///< The keys are as high as those of the text keyboard.
constexpr int keyCount = 3;
constexpr float touchedFade = 0.5f;

} // namespace

WipeInput::WipeInput(ICommonAppContext* context, SColor color, int steps)
    : context_(context), color_(color), steps_(std::max(1, steps)), letterKeys_(context), numberKeys_(context),
      strip_(static_cast<std::size_t>(steps_) + 3) {
    const irr::core::dimension2di screen(context->getIrrlichtDevice()->getVideoDriver()->getScreenSize());
    const int left = screen.Width - context->getRecommendedButtonWidth() * 5 / 4;
    const int height = keyHeight(screen, context->getRecommendedButtonHeight(), keyRows);
    const int width = height * 3 / 2;
    area_ = recti(left, 0, screen.Width, screen.Height);
    keyArea_ = recti(left - keyCount * width, screen.Height - height, left, screen.Height);
    addKeys(letterKeys_, wipeAlphabet(StringEdit).front());
    addKeys(numberKeys_, wipeAlphabet(IntegerEdit).front());
}

void WipeInput::addKeys(TouchKeys& keys, wchar_t first) const {
    const KeyDefinition definitions[keyCount] = {{first, first, keyCodeOf(first), 1.0, ""},
                                                 {8, 8, BackspaceKey, 1.0, "media/backspace.png"},
                                                 {1, 1, EnterKey, 1.0, "media/enter.png"}};
    const int width = keyArea_.getWidth() / keyCount;
    for (int i = 0; i < keyCount; ++i) {
        const int left = keyArea_.UpperLeftCorner.X + i * width;
        keys.add(definitions[i], recti(left, keyArea_.UpperLeftCorner.Y, left + width, keyArea_.LowerRightCorner.Y));
    }
}

bool WipeInput::isPreferredInput(int id) {
    return id == IntegerEdit || id == DecimalEdit || id == StringEdit || id == DestinationEdit;
}

void WipeInput::OnSelect() {
    OnDeSelect();
    const irr::gui::IGUIElement* box = editBox();
    const int id = box ? box->getID() : StringEdit;
    keys_ = id == IntegerEdit || id == DecimalEdit ? &numberKeys_ : &letterKeys_;
}

void WipeInput::OnDeSelect() {
    dial_.stop();
    fade_ = 1.0f;
    letterKeys_.reset();
    numberKeys_.reset();
}

bool WipeInput::isAt(irr::core::position2di position) const {
    return area_.isPointInside(position) || keys_->isAt(position);
}

irr::gui::IGUIElement* WipeInput::editBox() const {
    return context_->getIrrlichtDevice()->getGUIEnvironment()->getFocus();
}

wchar_t WipeInput::lastCharacter() const {
    const irr::gui::IGUIElement* box = editBox();
    const std::size_t length = box ? std::wcslen(box->getText()) : 0;
    return length ? box->getText()[length - 1] : 0;
}

bool WipeInput::processEvent(const irr::SEvent& event) {
    if (event.EventType != irr::EET_MOUSE_INPUT_EVENT)
        return true;
    const irr::SEvent::SMouseInput& mouse = event.MouseInput;
    const irr::core::position2di position(mouse.X, mouse.Y);
    if (mouse.Event == irr::EMIE_LMOUSE_PRESSED_DOWN && area_.isPointInside(position))
        begin(mouse.Y);
    else if (!dial_.isActive())
        keys_->process(mouse);
    else if (mouse.Event == irr::EMIE_MOUSE_MOVED) {
        dial_.move(mouse.Y);
        replaceLast();
    } else if (mouse.Event == irr::EMIE_LMOUSE_LEFT_UP) {
        dial_.stop();
        fade_ = 1.0f;
    }
    return !isAt(position);
}

/// The dial follows what is typed otherwise.
void WipeInput::rest() {
    const irr::gui::IGUIElement* box = editBox();
    dial_.rest(wipeAlphabet(box ? box->getID() : StringEdit), lastCharacter());
}

void WipeInput::begin(int y) {
    keys_->reset();
    rest();
    dial_.start(y, area_.getHeight(), steps_);
    fade_ = touchedFade;
}

void WipeInput::replaceLast() {
    const wchar_t character = dial_.getCharacter();
    if (character == lastCharacter())
        return;
    irr::IrrlichtDevice* device = context_->getIrrlichtDevice();
    typeKey(device, EndKey, 0);
    typeKey(device, BackspaceKey, 8);
    typeKey(device, keyCodeOf(character), character);
}

void WipeInput::render() {
    SColor color = color_;
    color.setAlpha(static_cast<irr::u32>(static_cast<float>(color_.getAlpha()) * fade_));
    drawStrip(color);
    keys_->render(color_);
}

/// The dialled character in the middle, on a band of its own; the others above and below it, in the order of the
/// alphabet.
void WipeInput::drawStrip(SColor color) {
    const auto* skin = dynamic_cast<Skin*>(context_->getIrrlichtDevice()->getGUIEnvironment()->getSkin());
    FlexibleFont* font = context_->getFlexibleFont();
    if (!skin || !font)
        return;
    if (!dial_.isActive())
        rest();
    const float cell = static_cast<float>(area_.getHeight()) / static_cast<float>(steps_);
    const float scale = 0.7f * cell / static_cast<float>(std::max(1, font->getFontDefintion().lineHeight));
    const int middle = area_.getCenter().Y;
    const int half = static_cast<int>(cell / 2.0f);
    skin->drawRow(area_, nullptr, color);
    skin->drawRow(recti(area_.UpperLeftCorner.X, middle - half, area_.LowerRightCorner.X, middle + half), nullptr,
                  SColor(0xffffffff));
    const int reach = static_cast<int>(strip_.size()) / 2;
    for (int offset = -reach; offset <= reach; ++offset) {
        const double centre = middle + (offset + 0.5 - dial_.getPlace().fraction) * static_cast<double>(cell);
        const wchar_t shown[2] = {dial_.getCharacter(offset), 0};
        CachedText& text = strip_[static_cast<std::size_t>(offset + reach)];
        text.set(font, shown, SColor(0xff000000));
        const int top = static_cast<int>(centre) - half;
        text.draw(recti(area_.UpperLeftCorner.X, top, area_.LowerRightCorner.X, top + 2 * half), {scale, scale}, true,
                  true, &area_);
    }
}

} // namespace skyvane
