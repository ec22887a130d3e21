#include "displays/information/CheckListItems.h"

#include "core/Context.h"
#include "core/text/Utf8.h"
#include "core/time/Time.h"
#include "displays/drawing/Drawer2D.h"
#include "gui/elements/ScrollBar.h"
#include "gui/font/FlexibleFont.h"
#include "gui/font/MakeWordWrappedText.h"
#include "gui/skin/Skin.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

using Rect = irr::core::rect<int>;

const irr::video::SColor groundColor(0xff10161d), openColor(0xfff2f5f9), doneColor(0xff74d68a), emptyColor(0xff9aa4b0),
    boxColor(0xff9fb0c3), doneRowColor(0xff14291b);
constexpr float textScale = 1.3f; ///< Of the panel font: to be read at arm's length.
constexpr size_t longestText = 1000;
constexpr const wchar_t* emptyText = L"No items. \"New\" makes a checklist, \"Edit\" changes it.";

/// What is too long to be an item is cut.
std::wstring shownText(const std::string& text) {
    std::wstring shown = decodeUtf8(text.substr(0, 4 * longestText));
    if (shown.size() <= longestText)
        return shown;
    shown.resize(longestText);
    return shown + L"...";
}

int linesOf(const std::wstring& text) {
    return 1 + static_cast<int>(std::count(text.begin(), text.end(), L'\n'));
}

} // namespace

CheckListItems* CheckListItems::add(Context& context, irr::gui::IGUIElement* parent, const Rect& place) {
    irr::gui::IGUIEnvironment* environment = context.getIrrlichtDevice()->getGUIEnvironment();
    auto* items = new CheckListItems(context, parent, place);
    Rect barPlace = place;
    barPlace.UpperLeftCorner.X = place.LowerRightCorner.X - items->barWidth();
    auto* bar = new ScrollBar(environment, 1.0f, false, -1, nullptr, LayoutWish(), parent, barPlace);
    bar->linkToScrollable(items);
    bar->drop();
    items->drop();
    items->begin({});
    return items;
}

CheckListItems::CheckListItems(Context& context, irr::gui::IGUIElement* parent, const Rect& place)
    : IGUIElement(irr::gui::EGUIET_ELEMENT, context.getIrrlichtDevice()->getGUIEnvironment(), parent, -1, place),
      context_(context), tick_(loadPanelImage(&context, "media/tick.png")),
      edge_(context.getRecommendedButtonHeight() * 3 / 4) {}

CheckListItems::~CheckListItems() {
    if (bar_)
        bar_->unlinkScrollable();
}

void CheckListItems::begin(const std::list<std::string>& lines) {
    progress_.begin(lines);
    layOut();
}

void CheckListItems::update(const std::list<std::string>& lines) {
    if (progress_.update(lines))
        layOut();
}

Rect CheckListItems::view() const {
    const int rim = std::max(2, edge_ / 12);
    return {AbsoluteRect.UpperLeftCorner.X + rim, AbsoluteRect.UpperLeftCorner.Y + rim,
            AbsoluteRect.LowerRightCorner.X - (scroll_.canScroll() ? barWidth() : rim),
            AbsoluteRect.LowerRightCorner.Y - rim};
}

void CheckListItems::layOut() {
    FlexibleFont* font = context_.getFlexibleFont();
    const int room = AbsoluteRect.getWidth() - barWidth() - 2 * edge_ - edge_ / 2;
    const auto width = static_cast<unsigned>(std::max(1.0f, static_cast<float>(room) / textScale));
    const int line = font ? static_cast<int>(static_cast<float>(font->getDimension(L"Ag").Height) * textScale) : edge_;
    wrapped_.clear();
    texts_.clear();
    rows_.clear();
    for (int item = 0; item < progress_.getCount(); ++item) {
        wrapped_.push_back(makeWordWrappedText(shownText(progress_.getText(item)), width, font));
        rows_.add(std::max(edge_ * 5 / 3, linesOf(wrapped_.back()) * line + edge_ / 2));
    }
    texts_.resize(wrapped_.size());
    scroll_.setShare(0.0f);
    scroll_.setLengths(rows_.getHeight(), view().getHeight());
    scrolled();
}

void CheckListItems::scrolled() {
    if (!bar_)
        return;
    bar_->setVisible(scroll_.canScroll());
    bar_->setRatio(scroll_.getVisibleShare());
    bar_->setPos(scroll_.getShare(), false);
}

void CheckListItems::setScrollShare(float share) {
    scroll_.setShare(share);
}

Rect CheckListItems::rowPlace(int item) const {
    const Rect place = view();
    const int top = place.UpperLeftCorner.Y + scroll_.getOffset();
    return {place.UpperLeftCorner.X, top + rows_.getTop(item), place.LowerRightCorner.X, top + rows_.getBottom(item)};
}

/// The row before it stays in view: what was ticked last.
void CheckListItems::showNext() {
    const int next = progress_.getNext();
    if (next == CheckListProgress::none)
        return;
    const Rect place = view();
    const int above = rowPlace(std::max(0, next - 1)).UpperLeftCorner.Y - place.UpperLeftCorner.Y;
    const int below = rowPlace(next).LowerRightCorner.Y - place.LowerRightCorner.Y;
    if (above < 0)
        scroll_.moveBy(-above);
    else if (below > 0)
        scroll_.moveBy(-std::min(below, above));
    scrolled();
}

bool CheckListItems::OnEvent(const irr::SEvent& event) {
    if (isEnabled() && event.EventType == irr::EET_MOUSE_INPUT_EVENT && handleMouse(event.MouseInput))
        return true;
    return IGUIElement::OnEvent(event);
}

bool CheckListItems::handleMouse(const irr::SEvent::SMouseInput& mouse) {
    switch (mouse.Event) {
    case irr::EMIE_LMOUSE_PRESSED_DOWN:
        Environment->setFocus(this);
        scroll_.press(mouse.Y);
        return true;
    case irr::EMIE_MOUSE_MOVED:
        if (!scroll_.isDragging())
            return false;
        scroll_.move(mouse.Y);
        scrolled();
        return true;
    case irr::EMIE_LMOUSE_LEFT_UP:
        if (!scroll_.isDragging())
            return false;
        scroll_.release(Secs());
        if (!scroll_.isDragged() && view().isPointInside({mouse.X, mouse.Y}))
            tap(mouse.Y);
        return true;
    case irr::EMIE_MOUSE_WHEEL:
        scroll_.moveBy(static_cast<int>(mouse.Wheel * static_cast<float>(edge_)));
        scrolled();
        return true;
    default:
        return false;
    }
}

void CheckListItems::tap(int y) {
    const int item = rows_.at(y - view().UpperLeftCorner.Y - scroll_.getOffset());
    if (item < 0)
        return;
    progress_.toggle(item);
    if (progress_.isDone(item))
        showNext();
}

void CheckListItems::draw() {
    if (!isVisible())
        return;
    if (scroll_.update(Secs()))
        scrolled();
    Drawer2D* drawer = context_.getDrawer();
    drawer->resetViewPort();
    drawer->drawFilledRect(AbsoluteRect, groundColor);
    const Rect clip = view();
    if (progress_.getCount() == 0) {
        drawer->flush();
        context_.getFlexibleFont()->draw(emptyText, clip, emptyColor, true, true, &clip);
    }
    const int first = std::max(0, rows_.at(-scroll_.getOffset()));
    for (int item = first; item < progress_.getCount(); ++item) {
        if (rowPlace(item).UpperLeftCorner.Y >= clip.LowerRightCorner.Y)
            break;
        drawItem(item, clip);
    }
    drawer->drawOutline(AbsoluteRect, context_.getSkin()->getColor("rim"), std::max(1, edge_ / 18));
    drawer->flush();
    IGUIElement::draw();
}

void CheckListItems::drawItem(int item, const Rect& clip) {
    const Skin* skin = context_.getSkin();
    const bool isDone = progress_.isDone(item), isNext = item == progress_.getNext();
    Rect row = rowPlace(item);
    const int gap = std::max(1, edge_ / 16);
    row.UpperLeftCorner.Y += gap;
    row.LowerRightCorner.Y -= gap;
    skin->drawRow(row, &clip,
                  isDone   ? doneRowColor
                  : isNext ? skin->getColor(irr::gui::EGDC_HIGH_LIGHT)
                           : skin->getColor(irr::gui::EGDC_3D_FACE));
    const int left = row.UpperLeftCorner.X + edge_ / 2, top = row.getCenter().Y - edge_ / 2;
    drawBox({left, top, left + edge_, top + edge_}, clip, isDone);
    context_.getDrawer()->flush();
    std::unique_ptr<CachedText>& text = texts_[static_cast<size_t>(item)];
    if (!text)
        text = std::make_unique<CachedText>();
    FlexibleFont* font = context_.getFlexibleFont();
    text->set(font, wrapped_[static_cast<size_t>(item)].c_str(), isDone ? doneColor : openColor);
    row.UpperLeftCorner.X = left + edge_ + edge_ / 2;
    text->draw(row, font->getDefaultScale() * textScale, false, true, &clip);
}

void CheckListItems::drawBox(const Rect& box, const Rect& clip, bool isDone) {
    Drawer2D* drawer = context_.getDrawer();
    Rect frame = box, ground = box;
    const int width = std::max(2, edge_ / 14);
    ground.UpperLeftCorner += irr::core::vector2d<int>(width, width);
    ground.LowerRightCorner -= irr::core::vector2d<int>(width, width);
    frame.clipAgainst(clip);
    ground.clipAgainst(clip);
    drawer->drawFilledRect(frame, isDone ? doneColor : boxColor);
    drawer->drawFilledRect(ground, groundColor);
    if (isDone)
        drawer->Draw(tick_.get(), box, &clip);
}

} // namespace skyvane
