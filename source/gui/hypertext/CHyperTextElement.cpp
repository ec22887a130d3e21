#include "gui/hypertext/CHyperTextElement.h"

#include "gui/font/FlexibleFont.h"
#include "gui/layoutmath/RestOfPage.h"
#include "gui/skin/Skin.h"
#include "gui/windows/WindowTools.h"

#include <algorithm>

namespace skyvane {
namespace {

using Rect = irr::core::rect<int>;

constexpr int rim = 3;
constexpr int gapToCover = 8;
constexpr int marginsInWidth = 80;
const wchar_t* const labels[] = {L"<", L">", L"+", L"-", L"1"};

} // namespace

CHyperTextElement::CHyperTextElement(irr::IrrlichtDevice* device, const Rect& rect, irr::gui::IGUIElement* parent,
                                     const std::string& file, const char* dir, const Options& options)
    : IGUIElement(irr::gui::EGUIET_ELEMENT, device->getGUIEnvironment(), parent, -1, rect), options_(options),
      document_(device, file, dir) {
    init();
}

CHyperTextElement::CHyperTextElement(irr::IrrlichtDevice* device, const Rect& rect, irr::gui::IGUIElement* parent,
                                     const char* text, int size, const Options& options)
    : IGUIElement(irr::gui::EGUIET_ELEMENT, device->getGUIEnvironment(), parent, -1, rect), options_(options),
      document_(device, text, size, nullptr) {
    init();
}

void CHyperTextElement::init() {
    if (options_.barHeight <= 0)
        return;
    for (size_t i = 0; i < buttons_.size(); ++i)
        buttons_[i] = Environment->addButton(Rect(0, 0, 1, 1), this, -1, labels[i]);
    placeButtons();
}

void CHyperTextElement::setFlexibleFont(FlexibleFont* font) {
    font_ = font;
    document_.setFont(font);
}

/// Across the top, in equal distances; a gap at either end is what is left.
void CHyperTextElement::placeButtons() {
    if (!buttons_[0])
        return;
    const int count = static_cast<int>(buttons_.size());
    const int gap = RelativeRect.getWidth() / 20;
    const int width = std::min((RelativeRect.getWidth() - (count - 1) * gap) / count, options_.buttonWidth);
    const int margin = (RelativeRect.getWidth() - count * width - (count - 1) * gap) / 2;
    for (int i = 0; i < count; ++i) {
        const int left = margin + i * (width + gap);
        buttons_[static_cast<size_t>(i)]->setRelativePosition(Rect(left, 0, left + width, options_.barHeight));
    }
}

void CHyperTextElement::updateAbsolutePosition() {
    const int before = AbsoluteRect.getWidth();
    IGUIElement::updateAbsolutePosition();
    if (before != AbsoluteRect.getWidth())
        placeButtons();
}

Rect CHyperTextElement::pageRect() const {
    Rect rect = AbsoluteRect;
    rect.UpperLeftCorner.Y += options_.barHeight > 0 ? options_.barHeight + rim : 0;
    return restOfPage(rect, cover_, gapToCover);
}

Style CHyperTextElement::baseStyle() const {
    Style style;
    style.scale = font_ ? font_->getDefaultScale().Y : 1.0f;
    style.textColor = Environment->getSkin()->getColor(irr::gui::EGDC_BUTTON_TEXT).color;
    return style;
}

void CHyperTextElement::draw() {
    if (!isVisible())
        return;
    irr::gui::IGUISkin* skin = Environment->getSkin();
    Rect page = pageRect();
    skin->draw3DSunkenPane(this, skin->getColor(irr::gui::EGDC_3D_HIGH_LIGHT), false, true, page,
                           &AbsoluteClippingRect);
    const irr::core::position2di inset(std::max(rim, page.getWidth() / marginsInWidth), rim);
    page.UpperLeftCorner += inset;
    page.LowerRightCorner -= inset;
    document_.render(baseStyle(), page);
    drawScrollMark(page, inset.X);
    if (buttons_[0]) {
        buttons_[Backwards]->setEnabled(document_.hasBackward());
        buttons_[Forwards]->setEnabled(document_.hasForward());
    }
    IGUIElement::draw();
}

/// In the margin, where the view stands in a page that is longer.
void CHyperTextElement::drawScrollMark(const Rect& page, int margin) {
    const FingerScroll& scroll = document_.getScroll();
    if (!document_.hasPage() || !scroll.canScroll())
        return;
    const int length = std::max(4 * margin, static_cast<int>(scroll.getVisibleShare() * page.getHeight()));
    const int top = page.UpperLeftCorner.Y + static_cast<int>(scroll.getShare() * (page.getHeight() - length));
    const int left = page.LowerRightCorner.X + margin / 3, width = std::max(2, margin / 2);
    Environment->getSkin()->draw2DRectangle(this, Environment->getSkin()->getColor(irr::gui::EGDC_GRAY_TEXT),
                                            Rect(left, top, left + width, top + length), &AbsoluteClippingRect);
}

bool CHyperTextElement::OnEvent(const irr::SEvent& event) {
    for (size_t i = 0; i < buttons_.size(); ++i)
        if (isClickOf(event, buttons_[i])) {
            press(static_cast<Button>(i));
            return true;
        }
    if (event.EventType == irr::EET_KEY_INPUT_EVENT && event.KeyInput.PressedDown && processKey(event.KeyInput))
        return true;
    if (event.EventType == irr::EET_MOUSE_INPUT_EVENT) {
        const irr::core::position2di place(event.MouseInput.X, event.MouseInput.Y);
        return document_.processEvent(event) || AbsoluteClippingRect.isPointInside(place);
    }
    return IGUIElement::OnEvent(event);
}

void CHyperTextElement::press(Button button) {
    switch (button) {
    case Backwards:
        document_.Backwards();
        break;
    case Forwards:
        document_.Forwards();
        break;
    case Larger:
        document_.setSize(document_.getSize() + 1);
        break;
    case Smaller:
        document_.setSize(document_.getSize() - 1);
        break;
    default:
        document_.setSize(0);
    }
}

bool CHyperTextElement::processKey(const irr::SEvent::SKeyInput& key) {
    constexpr float line = 0.1f, page = 0.9f, whole = 1e6f;
    const struct {
        irr::EKEY_CODE key;
        float share;
    } steps[] = {{irr::KEY_UP, -line},  {irr::KEY_DOWN, line},   {irr::KEY_PRIOR, -page},
                 {irr::KEY_NEXT, page}, {irr::KEY_HOME, -whole}, {irr::KEY_END, whole}};
    for (const auto& step : steps)
        if (key.Key == step.key) {
            document_.scrollByView(step.share);
            return true;
        }
    return false;
}

} // namespace skyvane
