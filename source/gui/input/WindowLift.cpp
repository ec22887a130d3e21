#include "gui/input/WindowLift.h"

namespace skyvane {

using irr::core::recti;
using irr::gui::IGUIElement;

namespace {

/// What stands on the screen by itself, or on the veil of a modal dialog.
IGUIElement* windowOf(IGUIElement* element) {
    for (IGUIElement* parent = element->getParent(); parent; parent = element->getParent()) {
        if (!parent->getParent() || parent->getType() == irr::gui::EGUIET_MODAL_SCREEN)
            return element;
        element = parent;
    }
    return element;
}

} // namespace

void WindowLift::Moved::place(IGUIElement* moved, const recti& to) {
    if (element.get() != moved || !isInPlace()) {
        element = EngineRef<IGUIElement>::share(moved);
        before = moved->getRelativePosition();
    }
    after = to;
    moved->setRelativePosition(to);
}

void WindowLift::Moved::restore() {
    if (isInPlace() && element->getParent())
        element->setRelativePosition(before);
    element.reset();
}

void WindowLift::lift(IGUIElement* editBox, const std::vector<recti>& covers, int margin) {
    IGUIElement* window = windowOf(editBox);
    if (window_.element.get() != window || !window_.isInPlace())
        lower();
    // Where both would stand by themselves.
    const recti windowHome = window_.element ? window_.before : window->getRelativePosition();
    const irr::core::position2di lifted = windowHome.UpperLeftCorner - window->getRelativePosition().UpperLeftCorner;
    recti box = editBox->getAbsolutePosition() + lifted;
    const bool isShrunk = editBox_.element.get() == editBox && editBox_.isInPlace();
    const recti boxHome = isShrunk ? editBox_.before : editBox->getRelativePosition();
    box.LowerRightCorner.Y = box.UpperLeftCorner.Y + boxHome.getHeight();
    const Clearance needed = clearOf(covers, box, window->getAbsolutePosition() + lifted, margin);
    const recti windowPlace = windowHome - irr::core::position2di(0, needed.lift);
    if (windowPlace != window->getRelativePosition())
        window_.place(window, windowPlace);
    recti boxPlace = boxHome;
    boxPlace.LowerRightCorner.Y -= needed.shrink;
    if (boxPlace != editBox->getRelativePosition())
        editBox_.place(editBox, boxPlace);
}

recti WindowLift::getBared() const {
    if (!window_.isInPlace())
        return {};
    recti bared = window_.element->getAbsolutePosition();
    bared.UpperLeftCorner.Y = bared.LowerRightCorner.Y;
    bared.LowerRightCorner.Y += window_.before.UpperLeftCorner.Y - window_.after.UpperLeftCorner.Y;
    return bared;
}

void WindowLift::lower() {
    editBox_.restore();
    window_.restore();
}

} // namespace skyvane
