#include "displays/panels/MessageBoxView.h"

#include "core/ICommonAppContext.h"
#include "core/text/Utf8.h"
#include "core/time/Time.h"
#include "displays/drawing/Drawer2D.h"
#include "gui/font/MakeWordWrappedText.h"

#include <algorithm>

namespace skyvane {

namespace {

/// The same centre, but no smaller than the size: fonts cut a text at its rectangle.
irr::core::rect<int> atLeast(const irr::core::rect<int>& rect, const irr::core::dimension2d<irr::u32>& size) {
    const int width = std::max(rect.getWidth(), static_cast<int>(size.Width));
    const int height = std::max(rect.getHeight(), static_cast<int>(size.Height));
    const irr::core::vector2d<int> corner = rect.getCenter() - irr::core::vector2d<int>(width / 2, height / 2);
    return {corner, irr::core::dimension2d<int>(width, height)};
}

} // namespace

MessageBoxView::MessageBoxView(ICommonAppContext* app, SetNoMouseBox setNoMouseBox)
    : app_(app), setNoMouseBox_(std::move(setNoMouseBox)), closeLabel_(L"Close") {}

MessageBoxView::~MessageBoxView() = default;

irr::gui::IGUIFont* MessageBoxView::skinFont() const {
    return app_->getIrrlichtDevice()->getGUIEnvironment()->getSkin()->getFont();
}

void MessageBoxView::layOut(const std::string& text, bool close, const MessageSpace& space) {
    if (text != text_) {
        irr::gui::IGUIFont* font = skinFont();
        const auto width = static_cast<unsigned>(0.9 * space.screenWidth);
        wrapped_ = makeWordWrappedText(decodeUtf8(text), width, font).c_str();
        textSize_ = font ? font->getDimension(wrapped_.c_str()) : irr::core::dimension2d<irr::u32>(0, 0);
        text_ = text;
    }
    close_ = close;
    rects_ = placeMessageBox(textSize_, close, space);
}

void MessageBoxView::show(const std::string& text, MessageBox::Colors colors, int durationMilliseconds, bool close,
                          const MessageSpace& space, bool enabled) {
    if (text.empty())
        return;
    layOut(text, close, space);
    box_.show(rects_, colors, durationMilliseconds, MilliSecs());
    if (enabled)
        keepMouse(&rects_.box);
}

void MessageBoxView::hide() {
    letMousePass();
    box_.hide();
}

void MessageBoxView::keepMouse(const irr::core::rect<int>* box) {
    if (box ? kept_ == *box : !kept_)
        return;
    kept_ = box ? std::optional(*box) : std::nullopt;
    setNoMouseBox_(box);
}

void MessageBoxView::render() {
    MessageBox::Colors colors{};
    if (!box_.isVisible())
        return;
    if (!box_.update(MilliSecs(), colors))
        return letMousePass();
    keepMouse(&rects_.box);
    const irr::video::SColor textColor(colors.text);
    const irr::core::rect<int>& box = rects_.box;
    Drawer2D* drawer = app_->getDrawer();
    drawer->resetViewPort();
    drawer->drawFilledRect(box, irr::video::SColor(colors.box));
    drawer->drawOutline(irr::core::rect<int>(box.UpperLeftCorner + irr::core::vector2d<int>(1, 1),
                                             box.LowerRightCorner - irr::core::vector2d<int>(1, 1)),
                        textColor);
    drawer->flush();
    irr::gui::IGUIFont* font = skinFont();
    if (!font)
        return;
    if (close_)
        font->draw(closeLabel_, atLeast(rects_.close, font->getDimension(closeLabel_.c_str())), textColor, true, true);
    font->draw(wrapped_, rects_.text, textColor);
}

MessageBox::Answer MessageBoxView::processMouse(const irr::SEvent::SMouseInput& mouse) {
    MessageBox::Answer answer = MessageBox::Answer::NotMine;
    if (mouse.Event == irr::EMIE_LMOUSE_PRESSED_DOWN)
        answer = box_.press(mouse.X, mouse.Y);
    else if (mouse.Event == irr::EMIE_LMOUSE_LEFT_UP)
        answer = box_.release(mouse.X, mouse.Y);
    if (answer == MessageBox::Answer::Dismissed)
        letMousePass();
    return answer;
}

} // namespace skyvane
