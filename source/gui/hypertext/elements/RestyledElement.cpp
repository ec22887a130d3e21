#include "gui/hypertext/elements/RestyledElement.h"

namespace skyvane {

IDocElement::Rect RestyledElement::calcRelativeViewPort(IDocCanvas& canvas, const Style& style, int width) {
    const Rect inside = child_->calcRelativeViewPort(canvas, restyle(canvas, style), width);
    relative_ = Rect(0, 0, inside.LowerRightCorner.X, inside.LowerRightCorner.Y);
    return relative_;
}

void RestyledElement::render(const Rect& parent, DocPass& pass) {
    const Rect place = placeIn(parent);
    if (place.isRectCollided(pass.clip))
        child_->render(place, pass);
}

} // namespace skyvane
