#include "gui/hypertext/elements/StyleElement.h"

#include "core/text/Numbers.h"

#include <algorithm>
#include <cstdio>

namespace skyvane {

std::string StyleElement::Print(int indent) const {
    return dumpLine(indent, "Style " + toText(change_.size) + (change_.centered ? " centred" : "")) +
           child_->Print(indent + 1);
}

IDocElement::Rect StyleElement::calcRelativeViewPort(IDocCanvas& canvas, const Style& style, int width) {
    Style changed = style;
    changed.textColor = readableColor(change_.color, canvas.getPageColor());
    changed.centered = change_.centered;
    changed.applySize(change_.size);
    const Rect inside = child_->calcRelativeViewPort(canvas, changed, width);
    relative_ = Rect(0, 0, inside.LowerRightCorner.X, inside.LowerRightCorner.Y);
    return relative_;
}

void StyleElement::render(const Rect& parent, DocPass& pass) {
    const Rect place = placeIn(parent);
    if (place.isRectCollided(pass.clip))
        child_->render(place, pass);
}

std::string StyleElement::toHTML() const {
    char font[64];
    std::snprintf(font, sizeof font, "<font color=\"#%06x\" size=\"%+d\">", change_.color & 0xffffffu,
                  std::clamp(change_.size, -6, 6));
    const std::string inside = font + child_->toHTML() + "</font>";
    return change_.centered ? "<div align=\"center\">" + inside + "</div>\n" : inside;
}

} // namespace skyvane
