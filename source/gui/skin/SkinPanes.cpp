#include "displays/drawing/Drawer2D.h"
#include "gui/skin/Skin.h"
#include "gui/skin/TouchList.h"

#include <algorithm>
#include <cstring>

namespace skyvane {

using irr::video::SColor;

namespace {

/// How much of itself a colour keeps on a button that can't be pressed.
constexpr float disabledShare = 0.45f;

bool isPartOf(irr::gui::IGUIElement* element, irr::gui::EGUI_ELEMENT_TYPE type) {
    return element && element->getParent() && element->getParent()->getType() == type;
}

/// A button of the engine that only carries a sign, inside of an element with a pane of its own.
bool isPaneless(irr::gui::IGUIElement* element) {
    return isPartOf(element, irr::gui::EGUIET_SCROLL_BAR) || isPartOf(element, irr::gui::EGUIET_COMBO_BOX);
}

constexpr const char* wholeScreenName = "wholeScreen";

bool hasText(irr::gui::IGUIElement* element) {
    return element && element->getText() && *element->getText();
}

SColor faded(SColor color, float share) {
    const auto part = [share](irr::u32 component) {
        return static_cast<irr::u32>(static_cast<float>(component) * share);
    };
    return SColor(color.getAlpha(), part(color.getRed()), part(color.getGreen()), part(color.getBlue()));
}

void inset(irr::core::rect<irr::s32>& rect, int by) {
    rect.UpperLeftCorner += irr::core::position2di(by, by);
    rect.LowerRightCorner -= irr::core::position2di(by, by);
}

/// Panes show focus and choice by themselves: the engine's own mark behind the text of a combo box goes, and the text
/// keeps clear of the rim.
void tidyComboText(irr::gui::IGUIElement* comboBox, SColor color, int distance) {
    for (irr::gui::IGUIElement* child : comboBox->getChildren()) {
        if (child->getType() != irr::gui::EGUIET_STATIC_TEXT)
            continue;
        auto* text = static_cast<irr::gui::IGUIStaticText*>(child);
        text->setDrawBackground(false);
        text->setOverrideColor(color);
        irr::core::rect<irr::s32> place = text->getRelativePosition();
        if (place.UpperLeftCorner.X == distance || place.LowerRightCorner.X <= distance)
            continue;
        place.UpperLeftCorner.X = distance;
        text->setRelativePosition(place);
    }
}

} // namespace

void Skin::setWholeScreen(irr::gui::IGUIElement* window) {
    window->setName(wholeScreenName);
}

SColor Skin::paneTint(SColor color) const {
    SColor tint = brightened(color);
    tint.setAlpha(getColor(irr::gui::EGDC_3D_FACE).getAlpha());
    return tint;
}

SColor Skin::paneTint(bool enabled) const {
    const SColor tint = paneTint(SColor(0xffffffff));
    return enabled ? tint : faded(tint, disabledShare);
}

const ButtonStyle* Skin::styleOf(Element* element) const {
    if (!element || element->getType() != irr::gui::EGUIET_BUTTON || !*element->getName())
        return nullptr;
    const auto found = styleIndices_.find(element->getName());
    return found != styleIndices_.end() ? &styles_[found->second] : nullptr;
}

void Skin::drawRow(const Rect& rect, const Rect* clip, SColor color) const {
    if (panes_.rectangle)
        panes_.rectangle->drawTinted(rect, clip, color);
    else
        environment_->getVideoDriver()->draw2DRectangle(color, rect, clip);
}

void Skin::draw3DButtonPaneStandard(Element* element, const Rect& rect, const Rect* clip) {
    if (!panes_.normal)
        return IExtendableSkin::draw3DButtonPaneStandard(element, rect, clip);
    drawButton(element, rect, clip, false);
}

void Skin::draw3DButtonPanePressed(Element* element, const Rect& rect, const Rect* clip) {
    if (!panes_.normal)
        return IExtendableSkin::draw3DButtonPanePressed(element, rect, clip);
    drawButton(element, rect, clip, true);
}

void Skin::drawButton(Element* element, const Rect& rect, const Rect* clip, bool pressed) {
    if (element && element->getType() == irr::gui::EGUIET_SCROLL_BAR) {
        Rect thumb = rect;
        inset(thumb, 2);
        return panes_.rectangle->drawTinted(thumb, clip, paneTint(getColor("rim")));
    }
    if (isPaneless(element)) {
        if (pressed)
            panes_.rectangle->drawTinted(rect, clip, getColor(irr::gui::EGDC_HIGH_LIGHT));
        return;
    }
    const ButtonStyle* style = styleOf(element);
    const bool enabled = !element || element->isEnabled();
    drawButtonFace(style, enabled, rect, clip, pressed);
    if (!style)
        return;
    if (style->image)
        drawImage(style->image.get(), element, rect, clip);
    nextText_ = style->hasTextColor && enabled && hasText(element) ? style : nullptr;
}

void Skin::drawButtonFace(const ButtonStyle* style, bool enabled, const Rect& rect, const Rect* clip,
                          bool pressed) const {
    if (style && style->style == ButtonStyle::Transparent) {
        if (pressed)
            panes_.rectangle->drawTinted(rect, clip, getColor(irr::gui::EGDC_HIGH_LIGHT));
        return;
    }
    const bool isTinted = style && style->hasColors && style->style != ButtonStyle::Vis;
    if (!isTinted) {
        (pressed ? panes_.pressed : panes_.normal)->drawTinted(rect, clip, paneTint(enabled));
        if (style && style->style == ButtonStyle::Vis)
            drawLamp(*style, enabled, rect, clip, pressed);
        return;
    }
    std::array<SColor, 4> tint;
    for (std::size_t i = 0; i < tint.size(); ++i) {
        tint[i] = faded(brightened(style->cornerColors[i]), enabled ? 1.0f : disabledShare);
        tint[i].setAlpha(paneTint().getAlpha());
    }
    if (style->style == ButtonStyle::Row && !pressed)
        return panes_.rectangle->drawButton(rect, clip, tint.data());
    (pressed ? panes_.tintablePressed : panes_.tintable)->drawButton(rect, clip, tint.data());
    if (pressed)
        panes_.flatRim->drawFrame(rect, clip, paneTint());
}

void Skin::drawLamp(const ButtonStyle& style, bool enabled, const Rect& rect, const Rect* clip, bool pressed) const {
    const int height = rect.getHeight();
    const int margin = std::max(4, height / 5), width = std::max(4, height / 7);
    const int left = rect.UpperLeftCorner.X + std::max(5, height / 6);
    const Rect lamp(left, rect.UpperLeftCorner.Y + margin, left + width, rect.LowerRightCorner.Y - margin);
    Rect edge = lamp;
    inset(edge, -2);
    panes_.rectangle->drawTinted(edge, clip, SColor(0xff05070a));
    const float share = pressed && enabled ? 1.0f : 0.28f;
    panes_.rectangle->drawTinted(lamp, clip, faded(brightened(style.cornerColors[0]), share));
}

void Skin::drawImage(irr::video::ITexture* image, Element* element, const Rect& rect, const Rect* clip) const {
    const int side = std::min(rect.getWidth(), rect.getHeight()) * 7 / 10;
    const irr::core::position2di middle = rect.getCenter();
    const int left = hasText(element) ? rect.UpperLeftCorner.X + rect.getHeight() / 4 : middle.X - side / 2;
    drawer_->setColor(paneTint(element->isEnabled()));
    drawer_->Draw(image, Rect(left, middle.Y - side / 2, left + side, middle.Y - side / 2 + side), clip);
    drawer_->setColor(SColor(0xffffffff));
    drawer_->flush();
}

void Skin::draw3DSunkenPane(Element* element, SColor background, bool flat, bool fillBackground, const Rect& rect,
                            const Rect* clip) {
    if (!panes_.normal)
        return IExtendableSkin::draw3DSunkenPane(element, background, flat, fillBackground, rect, clip);
    const bool enabled = !element || element->isEnabled();
    if (element && element->getType() == irr::gui::EGUIET_COMBO_BOX)
        tidyComboText(element, getColor(enabled ? irr::gui::EGDC_BUTTON_TEXT : irr::gui::EGDC_GRAY_TEXT),
                      getSize(irr::gui::EGDS_TEXT_DISTANCE_X));
    if (isPartOf(element, irr::gui::EGUIET_COMBO_BOX) && element->getType() == irr::gui::EGUIET_LIST_BOX)
        fitListToFingers(static_cast<irr::gui::IGUIListBox*>(element), getSize(irr::gui::EGDS_BUTTON_HEIGHT));
    if (fillBackground)
        panes_.sunkenFill->drawTinted(rect, clip, background);
    const bool isFocused = element && environment_->hasFocus(element);
    const SColor rim = paneTint(getColor(isFocused ? "focus" : "rim"));
    (flat ? panes_.flatRim : panes_.sunkenRim)->drawFrame(rect, clip, enabled ? rim : faded(rim, disabledShare));
}

Skin::Rect Skin::draw3DWindowBackground(Element* element, bool drawTitleBar, SColor titleBarColor, const Rect& rect,
                                        const Rect* clip, Rect* checkClientArea) {
    if (!panes_.normal || checkClientArea)
        return IExtendableSkin::draw3DWindowBackground(element, drawTitleBar, titleBarColor, rect, clip,
                                                       checkClientArea);
    if (element && std::strcmp(element->getName(), wholeScreenName) == 0) {
        const Rect screen = environment_->getRootGUIElement()->getAbsolutePosition();
        drawer_->drawFilledRect(screen, getColor("bg")); // no dial shines through
        panes_.window->drawTinted(screen, nullptr, paneTint());
        return rect;
    }
    Rect around = rect;
    inset(around, -getSize(irr::gui::EGDS_BUTTON_HEIGHT) / 3);
    panes_.shadow->drawFrame(around, nullptr, paneTint());
    panes_.window->drawTinted(rect, clip, paneTint());
    Rect title = rect;
    inset(title, 4);
    title.LowerRightCorner.Y =
        std::min(rect.LowerRightCorner.Y, rect.UpperLeftCorner.Y + getSize(irr::gui::EGDS_WINDOW_BUTTON_WIDTH) + 6);
    if (drawTitleBar)
        panes_.rectangle->drawTinted(title, clip, titleBarColor);
    return title;
}

void Skin::draw3DMenuPane(Element* element, const Rect& rect, const Rect* clip) {
    if (!panes_.normal)
        return IExtendableSkin::draw3DMenuPane(element, rect, clip);
    panes_.window->drawTinted(rect, clip, paneTint());
}

void Skin::draw3DToolBar(Element* element, const Rect& rect, const Rect* clip) {
    draw3DMenuPane(element, rect, clip);
}

void Skin::draw3DTabButton(Element* element, bool active, const Rect& rect, const Rect* clip,
                           irr::gui::EGUI_ALIGNMENT alignment) {
    if (!panes_.normal)
        return IExtendableSkin::draw3DTabButton(element, active, rect, clip, alignment);
    (active ? panes_.pressed : panes_.normal)->drawTinted(rect, clip, paneTint());
}

void Skin::draw3DTabBody(Element* element, bool border, bool background, const Rect& rect, const Rect* clip,
                         irr::s32 tabHeight, irr::gui::EGUI_ALIGNMENT alignment) {
    if (!panes_.normal)
        return IExtendableSkin::draw3DTabBody(element, border, background, rect, clip, tabHeight, alignment);
    Rect body = rect;
    if (alignment == irr::gui::EGUIA_UPPERLEFT)
        body.UpperLeftCorner.Y += tabHeight;
    else
        body.LowerRightCorner.Y -= tabHeight;
    if (background)
        panes_.sunkenFill->drawTinted(body, clip, getColor(irr::gui::EGDC_WINDOW));
    if (border)
        panes_.flatRim->drawFrame(body, clip, paneTint(getColor("rim")));
}

void Skin::drawIcon(Element* element, irr::gui::EGUI_DEFAULT_ICON icon, const irr::core::position2di position,
                    irr::u32 startTime, irr::u32 currentTime, bool loop, const Rect* clip) {
    if (!panes_.normal)
        return IExtendableSkin::drawIcon(element, icon, position, startTime, currentTime, loop, clip);
    const bool enabled = !element || element->isEnabled();
    getSpriteBank()->draw2DSprite(getIcon(icon), position, clip,
                                  getColor(enabled ? irr::gui::EGDC_WINDOW_SYMBOL : irr::gui::EGDC_GRAY_WINDOW_SYMBOL),
                                  startTime, currentTime, loop, true);
}

void Skin::draw2DRectangle(Element* element, const SColor& color, const Rect& rect, const Rect* clip) {
    const bool isText = element && element->getType() == irr::gui::EGUIET_EDIT_BOX;
    if (!panes_.normal || isText)
        return IExtendableSkin::draw2DRectangle(element, color, rect, clip);
    panes_.rectangle->drawTinted(rect, clip, color);
}

} // namespace skyvane
