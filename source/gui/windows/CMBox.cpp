#include "gui/windows/CMBox.h"

#include "gui/font/MakeWordWrappedText.h"
#include "gui/skin/Skin.h"

#include <algorithm>

namespace skyvane {
namespace {

using Rect = irr::core::rect<irr::s32>;

constexpr irr::u32 backKey = 0xA6;
/// Light: the instruments behind a box stay readable.
const irr::video::SColor dimming(0x40000000);

Rect whole(const irr::gui::IGUIElement* element) {
    const Rect rect = element->getAbsolutePosition();
    return {0, 0, rect.getWidth(), rect.getHeight()};
}

irr::gui::IGUIElement* orRoot(irr::gui::IGUIElement* parent, irr::gui::IGUIEnvironment* environment) {
    return parent ? parent : environment->getRootGUIElement();
}

/// Where window, text and buttons stand, from the wrapped text's size.
struct BoxPlaces {
    BoxPlaces(const Rect& screen, const irr::core::dimension2du& textSize, const irr::core::dimension2d<int>& button,
              int buttons) {
        const int gap = button.Height / 2;
        const int least = buttons * button.Width + (buttons + 1) * gap;
        const int width = std::min(std::max(static_cast<int>(textSize.Width) + 2 * gap, least), screen.getWidth());
        const int foot = buttons > 0 ? button.Height + gap : 0;
        const int height = std::min(static_cast<int>(textSize.Height) + 2 * gap + foot, screen.getHeight());
        const irr::core::position2di corner = screen.getCenter() - irr::core::position2di(width / 2, height / 2);
        window = Rect(corner, irr::core::dimension2di(width, height));
        text = Rect(corner.X + gap, corner.Y + gap, corner.X + width - gap, corner.Y + height - gap - foot);
        firstButton =
            Rect(irr::core::position2di(screen.getCenter().X - (buttons * button.Width + (buttons - 1) * gap) / 2,
                                        corner.Y + height - gap - button.Height),
                 button);
        step = irr::core::position2di(button.Width + gap, 0);
    }

    Rect window;
    Rect text;
    Rect firstButton;
    irr::core::position2di step;
};

} // namespace

CMBox::CMBox(irr::gui::IGUIEnvironment* environment, irr::gui::IGUIElement* parent, const std::wstring& text,
             const std::wstring& positive, const std::wstring& negative, irr::s32 id)
    : IGUIElement(irr::gui::EGUIET_MODAL_SCREEN, environment, orRoot(parent, environment), id,
                  whole(orRoot(parent, environment))),
      formerFocus_(environment) {
    build(text, positive, negative);
    Parent->bringToFront(this);
    environment->setFocus(this); // a modal window behind leaves the focus to a box, but not to what is in one
    if (firstButton())
        environment->setFocus(firstButton());
}

void CMBox::build(const std::wstring& text, const std::wstring& positive, const std::wstring& negative) {
    irr::gui::IGUISkin* skin = Environment->getSkin();
    irr::gui::IGUIFont* font = skin->getFont();
    const int height = skin->getSize(irr::gui::EGDS_BUTTON_HEIGHT);
    const auto labelWidth = [font](const std::wstring& label) {
        return font ? static_cast<int>(font->getDimension(label.c_str()).Width) : 0;
    };
    const irr::core::dimension2di button(std::max(skin->getSize(irr::gui::EGDS_BUTTON_WIDTH) * 3 / 2,
                                                  std::max(labelWidth(positive), labelWidth(negative)) + height),
                                         height);
    const Rect screen = whole(this);
    const std::wstring wrapped =
        makeWordWrappedText(text, static_cast<unsigned>(std::max(screen.getWidth() * 7 / 10, 1)), font);
    const BoxPlaces places(screen, font ? font->getDimension(wrapped.c_str()) : irr::core::dimension2du(0, 0), button,
                           !positive.empty() + !negative.empty());
    window_ = places.window;
    irr::gui::IGUIStaticText* shown = Environment->addStaticText(wrapped.c_str(), places.text, false, false, this);
    shown->setTextAlignment(irr::gui::EGUIA_CENTER, irr::gui::EGUIA_CENTER);
    if (!negative.empty())
        negative_ = addButton(negative, places.firstButton, "redNormal");
    if (!positive.empty())
        positive_ = addButton(positive, places.firstButton + (negative_ ? places.step : irr::core::position2di(0, 0)),
                              "greenNormal");
}

irr::gui::IGUIButton* CMBox::addButton(const std::wstring& label, const Rect& rect, const char* style) {
    irr::gui::IGUIButton* button = Environment->addButton(rect, this, -1, label.c_str());
    Skin::setButtonStyle(button, style);
    return button;
}

void CMBox::OnPostRender(irr::u32 timeMilliseconds) {
    if (!isVisible())
        return;
    irr::gui::IGUISkin* skin = Environment->getSkin();
    skin->draw2DRectangle(this, dimming, AbsoluteRect, &AbsoluteClippingRect);
    skin->draw3DWindowBackground(this, false, skin->getColor(irr::gui::EGDC_ACTIVE_BORDER),
                                 window_ + AbsoluteRect.UpperLeftCorner, &AbsoluteClippingRect, nullptr);
    IGUIElement::draw();
    IGUIElement::OnPostRender(timeMilliseconds);
}

bool CMBox::OnEvent(const irr::SEvent& event) {
    if (event.EventType == irr::EET_KEY_INPUT_EVENT)
        return onKey(event);
    if (event.EventType == irr::EET_MOUSE_INPUT_EVENT)
        return true;
    if (event.EventType != irr::EET_GUI_EVENT)
        return IGUIElement::OnEvent(event);
    const irr::SEvent::SGUIEvent& gui = event.GUIEvent;
    // Who consumes these refuses the focus, and Enter would not reach the button.
    if (gui.EventType == irr::gui::EGET_ELEMENT_FOCUSED || gui.EventType == irr::gui::EGET_ELEMENT_FOCUS_LOST)
        return false;
    if (gui.EventType == irr::gui::EGET_BUTTON_CLICKED && gui.Caller &&
        (gui.Caller == positive_ || gui.Caller == negative_))
        answer(static_cast<irr::gui::IGUIButton*>(gui.Caller), gui.Caller == positive_);
    return true;
}

bool CMBox::onKey(const irr::SEvent& event) {
    const irr::SEvent::SKeyInput& key = event.KeyInput;
    if (static_cast<irr::u32>(key.Key) == backKey && !key.PressedDown && !firstButton())
        answer(nullptr, false);
    else if (key.Key == irr::KEY_RETURN && firstButton() && Environment->getFocus() == this) {
        Environment->setFocus(firstButton()); // a finger beside the buttons had taken it
        firstButton()->OnEvent(event);
    }
    return true;
}

void CMBox::answer(irr::gui::IGUIButton* button, bool isPositive) {
    grab();
    if (isPositive)
        OnPositive();
    else
        OnNegative();
    irr::SEvent told{};
    told.EventType = irr::EET_GUI_EVENT;
    told.GUIEvent.Caller = this;
    told.GUIEvent.Element = button;
    told.GUIEvent.EventType = isPositive ? irr::gui::EGET_MESSAGEBOX_YES : irr::gui::EGET_MESSAGEBOX_NO;
    if (Parent)
        Parent->OnEvent(told);
    setVisible(false);
    remove();
    formerFocus_.restore();
    drop();
}

} // namespace skyvane
