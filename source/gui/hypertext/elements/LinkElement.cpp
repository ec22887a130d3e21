#include "gui/hypertext/elements/LinkElement.h"

#include "core/geometry/Rectangles.h"
#include "gui/hypertext/elements/Html.h"

#include <algorithm>

namespace skyvane {

std::string LinkElement::Print(int indent) const {
    return dumpLine(indent, "Link " + target_) + child_->Print(indent + 1);
}

IDocElement::Rect LinkElement::calcRelativeViewPort(IDocCanvas& canvas, const Style& style, int width) {
    Style label = style;
    label.textColor = canvas.getLinkColor();
    label.centered = true;
    padding_ = canvas.getLinkPadding();
    const Rect inside = child_->calcRelativeViewPort(canvas, label, std::max(0, width - 2 * padding_));
    relative_ = Rect(0, 0, 0, 0);
    if (inside.getWidth() > 0 && inside.getHeight() > 0)
        relative_ = Rect(inside.UpperLeftCorner.X, inside.UpperLeftCorner.Y, inside.LowerRightCorner.X + 2 * padding_,
                         inside.LowerRightCorner.Y + 2 * padding_);
    return relative_;
}

void LinkElement::render(const Rect& parent, DocPass& pass) {
    const Rect place = placeIn(parent);
    if (!hasArea(relative_) || !place.isRectCollided(pass.clip))
        return;
    const bool touched = pass.isMouseInside(place);
    const bool pressed = touched && pass.isPressed();
    pass.canvas.drawButton(place, pressed, pass.clip);
    const int shift = padding_ + (pressed ? 1 : 0);
    // The child's place is relative to where this one begins, whose left edge follows the child's.
    const irr::core::vector2d<int> corner = parent.UpperLeftCorner + irr::core::vector2d<int>(shift, shift);
    child_->render(Rect(corner, place.LowerRightCorner), pass);
    if (touched && pass.mouseState == MouseState::Released)
        pass.canvas.gotoOnNextRender(target_);
}

std::string LinkElement::toHTML() const {
    std::string page = target_;
    const std::string suffix = ".hti";
    if (page.size() > suffix.size() && page.compare(page.size() - suffix.size(), suffix.size(), suffix) == 0)
        page.resize(page.size() - suffix.size());
    return "<div align=\"center\"><a href=\"" + escapeHTML(page) + ".html\" class=\"Button\">" + child_->toHTML() +
           "</a></div>\n";
}

} // namespace skyvane
