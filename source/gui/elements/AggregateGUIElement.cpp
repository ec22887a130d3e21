#include "gui/elements/AggregateGUIElement.h"

#include "core/time/Time.h"
#include "gui/elements/ScrollBar.h"
#include "gui/layoutmath/WeightedLayout.h"

#include <algorithm>

namespace skyvane {

AggregateGUIElement::AggregateGUIElement(irr::gui::IGUIEnvironment* environment, const Options& options,
                                         const Elements& subElements, const Elements& activatedSubElements,
                                         irr::gui::IGUIElement* parent, const irr::core::rect<irr::s32>& rectangle)
    : AggregatableGUIElement(environment, options.wish, options.id, options.data, parent, rectangle),
      options_(options) {
    for (IAggregatableGUIElement* child : subElements)
        insert(child, false);
    for (IAggregatableGUIElement* child : activatedSubElements)
        insert(child, true);
    AggregateGUIElement::updateAbsolutePosition();
}

AggregateGUIElement::~AggregateGUIElement() {
    if (bar_)
        bar_->unlinkScrollable();
}

void AggregateGUIElement::addSubElement(IAggregatableGUIElement* child, bool canBeActivated) {
    insert(child, canBeActivated);
    updateSubElementsPosition(scroll_.getOffset());
}

void AggregateGUIElement::insert(IAggregatableGUIElement* child, bool canBeActivated) {
    if (!child)
        return;
    const std::size_t onlyLaidOut = children_.size() - activatable_.size();
    const auto place = canBeActivated ? children_.end() : children_.begin() + static_cast<std::ptrdiff_t>(onlyLaidOut);
    children_.insert(place, child);
    if (canBeActivated)
        activatable_.push_back(child);
    addChild(child);
    child->drop();
}

void AggregateGUIElement::removeSubElements() {
    while (!children_.empty())
        removeChild(children_.back());
    scroll_.setShare(0.0f);
    scrolled();
}

void AggregateGUIElement::removeChild(irr::gui::IGUIElement* child) {
    const auto isIt = [child](const IAggregatableGUIElement* each) { return each == child; };
    children_.erase(std::remove_if(children_.begin(), children_.end(), isIt), children_.end());
    activatable_.erase(std::remove_if(activatable_.begin(), activatable_.end(), isIt), activatable_.end());
    if (child == touched_)
        touched_ = nullptr;
    IGUIElement::removeChild(child);
    updateSubElementsPosition(scroll_.getOffset());
}

bool AggregateGUIElement::getSingleSelected(IAggregatableGUIElement** selected) const {
    *selected = nullptr;
    int count = 0;
    for (IAggregatableGUIElement* child : activatable_) {
        if (!child->isActive())
            continue;
        *selected = child;
        ++count;
    }
    if (count != 1)
        *selected = nullptr;
    return count == 1;
}

void AggregateGUIElement::updateAbsolutePosition() {
    recalculateAbsolutePosition(false);
    updateSubElementsPosition(scroll_.getOffset());
}

void AggregateGUIElement::updateSubElementsPosition(int offset) {
    float sum = 0.0f;
    for (IAggregatableGUIElement* child : children_)
        sum += child->getRecommendedSpace() * options_.subElementWeight;
    WeightedLayout layout({options_.horizontal, options_.scrollable}, AbsoluteRect.getWidth(), AbsoluteRect.getHeight(),
                          sum);
    for (IAggregatableGUIElement* child : children_)
        child->setRelativePosition(layout.next(child->getRecommendedSpace() * options_.subElementWeight,
                                               child->getAspectRatio(), child->mustMaintainAspectRatio(), offset));
    scroll_.setLengths(options_.scrollable ? layout.getContentLength() : 0, layout.getViewLength());
    if (scroll_.getOffset() != offset)
        return updateSubElementsPosition(scroll_.getOffset());
    if (bar_) {
        bar_->setRatio(scroll_.getVisibleShare());
        bar_->setPos(scroll_.getShare(), false);
    }
}

void AggregateGUIElement::scrolled() {
    updateSubElementsPosition(scroll_.getOffset());
}

void AggregateGUIElement::scrollTo(const irr::gui::IGUIElement* element) {
    if (!options_.scrollable)
        return;
    const irr::core::rect<irr::s32> place = element->getAbsolutePosition();
    const auto axis = [this](const irr::core::position2di& at) { return options_.horizontal ? at.X : at.Y; };
    const int before = axis(AbsoluteRect.UpperLeftCorner) - axis(place.UpperLeftCorner);
    const int behind = axis(AbsoluteRect.LowerRightCorner) - axis(place.LowerRightCorner);
    if (before > 0 || behind < 0)
        scroll_.moveBy(before > 0 ? before : behind);
    scrolled();
}

void AggregateGUIElement::setScrollShare(float share) {
    scroll_.setShare(share);
    scrolled();
}

void AggregateGUIElement::setScrollBar(ScrollBar* bar) {
    bar_ = bar;
    if (!bar_)
        return;
    bar_->setRatio(scroll_.getVisibleShare());
    bar_->setPos(scroll_.getShare(), false);
}

void AggregateGUIElement::updateScrollSpeed() {
    if (options_.scrollable && scroll_.update(Secs()))
        scrolled();
}

void AggregateGUIElement::setActivationLock(bool locked) {
    AggregatableGUIElement::setActivationLock(locked);
    for (IAggregatableGUIElement* child : children_)
        child->setActivationLock(locked);
}

bool AggregateGUIElement::OnEvent(const irr::SEvent& event) {
    if (isEnabled()) {
        if (event.EventType == irr::EET_MOUSE_INPUT_EVENT && handleMouse(event.MouseInput))
            return true;
        if (event.EventType == irr::EET_GUI_EVENT) {
            const bool isFocus = event.GUIEvent.EventType <= irr::gui::EGET_ELEMENT_LEFT;
            if (event.GUIEvent.EventType == ElementActivated)
                select(dynamic_cast<const IAggregatableGUIElement*>(event.GUIEvent.Caller));
            else if (!isFocus)
                finishDrag(nullptr); // a child took the finger's leaving for itself
        }
    }
    return IGUIElement::OnEvent(event);
}

bool AggregateGUIElement::handleMouse(const irr::SEvent::SMouseInput& mouse) {
    if (!options_.scrollable && activatable_.empty())
        return false;
    const irr::core::position2di place(mouse.X, mouse.Y);
    switch (mouse.Event) {
    case irr::EMIE_LMOUSE_PRESSED_DOWN:
        touched_ = activatableAt(place);
        scroll_.press(along(mouse));
        // A list that doesn't scroll leaves the dragging to one around it.
        return options_.scrollable;
    case irr::EMIE_MOUSE_MOVED:
        return drag(mouse);
    case irr::EMIE_LMOUSE_LEFT_UP:
        return finishDrag(&place) && options_.scrollable;
    case irr::EMIE_MOUSE_WHEEL:
        if (!options_.scrollable)
            return false;
        scroll_.moveBy(static_cast<int>(
            mouse.Wheel * 0.1f *
            static_cast<float>(options_.horizontal ? AbsoluteRect.getWidth() : AbsoluteRect.getHeight())));
        scrolled();
        return true;
    default:
        return false;
    }
}

bool AggregateGUIElement::drag(const irr::SEvent::SMouseInput& mouse) {
    if (!scroll_.isDragging())
        return false;
    if (!mouse.isLeftPressed()) {
        finishDrag(nullptr);
        return false;
    }
    const bool wasDragged = scroll_.isDragged();
    scroll_.move(along(mouse));
    if (scroll_.isDragged() && !wasDragged) {
        touched_ = nullptr;
        setActivationLock(true);
    }
    if (options_.scrollable)
        scrolled();
    return options_.scrollable;
}

/// The finger left; at a place that it tapped, if there is one. False when it wasn't here.
bool AggregateGUIElement::finishDrag(const irr::core::position2di* tapAt) {
    if (!scroll_.isDragging())
        return false;
    scroll_.release(Secs());
    touched_ = nullptr;
    IAggregatableGUIElement* tapped = tapAt && !scroll_.isDragged() && !isLocked() ? activatableAt(*tapAt) : nullptr;
    setActivationLock(false);
    if (tapped)
        activate(tapped);
    return true;
}

void AggregateGUIElement::activate(IAggregatableGUIElement* child) {
    child->setActive(!options_.multiSelectable || !child->isActive());
    irr::SEvent event{};
    event.EventType = irr::EET_GUI_EVENT;
    event.GUIEvent.Caller = child;
    event.GUIEvent.Element = this;
    event.GUIEvent.EventType = ElementActivated;
    grab(); // who hears it may remove this
    OnEvent(event);
    drop();
}

void AggregateGUIElement::select(const IAggregatableGUIElement* child) {
    const bool isOwn = std::find(activatable_.begin(), activatable_.end(), child) != activatable_.end();
    if (!isOwn || options_.multiSelectable)
        return;
    for (IAggregatableGUIElement* each : activatable_)
        if (each != child)
            each->setActive(false);
}

IAggregatableGUIElement* AggregateGUIElement::activatableAt(const irr::core::position2di& place) const {
    for (IAggregatableGUIElement* child : activatable_)
        if (child->isVisible() && child->isEnabled() && child->getAbsoluteClippingRect().isPointInside(place))
            return child;
    return nullptr;
}

} // namespace skyvane
