#include "gui/elements/ColorWindow.h"

#include "gui/elements/ColorSwatch.h"
#include "gui/skin/Skin.h"

#include <algorithm>
#include <cwchar>

namespace skyvane {
namespace {

using irr::core::rect;

constexpr const wchar_t* labels[] = {L"R: ", L"G: ", L"B: ", L"A: "};

int buttonSize(const irr::gui::IGUIEnvironment* environment, irr::gui::EGUI_DEFAULT_SIZE which) {
    return environment->getSkin()->getSize(which);
}

rect<int> centred(const rect<int>& area, int width, int height) {
    const int left = area.UpperLeftCorner.X + (area.getWidth() - width) / 2;
    const int top = area.UpperLeftCorner.Y + (area.getHeight() - height) / 2;
    return {left, top, left + width, top + height};
}

} // namespace

ColorWindow::ColorWindow(irr::gui::IGUIEnvironment* environment, irr::video::SColor color, bool withAlpha)
    : environment_(environment), color_(color), channelCount_(withAlpha ? alphaChannel + 1 : alphaChannel) {
    const rect<int> screen = environment->getRootGUIElement()->getAbsolutePosition();
    const int buttonHeight = buttonSize(environment, irr::gui::EGDS_BUTTON_HEIGHT);
    const int rowHeight = buttonHeight * 13 / 10;
    const int rows = static_cast<int>(channelCount_) + 3;
    const int width = std::min(screen.getWidth(), 5 * buttonSize(environment, irr::gui::EGDS_BUTTON_WIDTH));
    window_ = environment->addWindow(centred(screen, width, rows * rowHeight), true);
    window_->setDrawTitlebar(false);
    window_->setDraggable(false);
    window_->getCloseButton()->setVisible(false);
    const int gap = rowHeight / 4;
    auto* swatch = new ColorSwatch(environment, color_, window_, {gap, gap, width - gap, gap + rowHeight});
    swatch->drop();
    addChannels(width, rowHeight);
    addButtons(width, (rows - 1) * rowHeight - gap / 2);
}

ColorWindow::~ColorWindow() {
    window_->remove();
}

void ColorWindow::addChannels(int width, int rowHeight) {
    const int gap = rowHeight / 4, labelWidth = width / 5;
    const int height = buttonSize(environment_, irr::gui::EGDS_BUTTON_HEIGHT);
    for (std::size_t i = 0; i < channelCount_; ++i) {
        const int top = 2 * gap + rowHeight * (static_cast<int>(i) + 1);
        Channel& channel = channels_[i];
        channel.label =
            environment_->addStaticText(L"", {gap, top, gap + labelWidth, top + height}, false, false, window_);
        channel.label->setTextAlignment(irr::gui::EGUIA_UPPERLEFT, irr::gui::EGUIA_CENTER);
        channel.slider = environment_->addScrollBar(true, {gap + labelWidth, top, width - gap, top + height}, window_);
        channel.slider->setMax(255);
        channel.slider->setSmallStep(1);
        channel.slider->setLargeStep(16);
        channel.slider->setPos(static_cast<irr::s32>(valueOf(i)));
        showChannel(i);
    }
}

void ColorWindow::addButtons(int width, int top) {
    const int buttonWidth = buttonSize(environment_, irr::gui::EGDS_BUTTON_WIDTH);
    const int height = buttonSize(environment_, irr::gui::EGDS_BUTTON_HEIGHT), gap = height / 3;
    const auto place = [&](int left) { return rect<int>(left, top, left + buttonWidth, top + height); };
    cancel_ = environment_->addButton(place(gap), window_, -1, L"Cancel");
    Skin::setButtonStyle(cancel_, "redNormal");
    help_ = environment_->addButton(place((width - buttonWidth) / 2), window_, -1, L"Help");
    ok_ = environment_->addButton(place(width - gap - buttonWidth), window_, -1, L"Ok");
    Skin::setButtonStyle(ok_, "greenNormal");
}

unsigned ColorWindow::valueOf(std::size_t channel) const {
    const unsigned values[] = {color_.getRed(), color_.getGreen(), color_.getBlue(), color_.getAlpha()};
    return values[channel];
}

void ColorWindow::showChannel(std::size_t channel) {
    wchar_t text[16];
    std::swprintf(text, sizeof text / sizeof *text, L"%ls%u", labels[channel], valueOf(channel));
    channels_[channel].label->setText(text);
}

void ColorWindow::readSliders() {
    const auto value = [this](std::size_t i) { return static_cast<irr::u32>(channels_[i].slider->getPos()); };
    color_.set(channels_[alphaChannel].slider ? value(alphaChannel) : color_.getAlpha(), value(0), value(1), value(2));
    for (std::size_t i = 0; i < channelCount_; ++i)
        showChannel(i);
}

ColorWindow::Answer ColorWindow::processEvent(const irr::SEvent& event) {
    if (event.EventType != irr::EET_GUI_EVENT)
        return Answer::None;
    const irr::SEvent::SGUIEvent& gui = event.GUIEvent;
    if (gui.EventType == irr::gui::EGET_SCROLL_BAR_CHANGED && gui.Caller->getParent() == window_)
        readSliders();
    if (gui.EventType != irr::gui::EGET_BUTTON_CLICKED)
        return Answer::None;
    return gui.Caller == ok_ ? Answer::Ok : gui.Caller == cancel_ ? Answer::Cancel : Answer::None;
}

} // namespace skyvane
