#include "gui/hypertext/elements/HeadElement.h"

namespace skyvane {
namespace {

constexpr float headScale = 1.3f;

}

std::string HeadElement::Print(int indent) const {
    return dumpLine(indent, "Head") + child_->Print(indent + 1);
}

IDocElement::Rect HeadElement::calcRelativeViewPort(IDocCanvas& canvas, const Style& style, int width) {
    Style larger = style;
    larger.multiplyScale(headScale);
    larger.centered = true;
    const Rect inside = child_->calcRelativeViewPort(canvas, larger, width);
    relative_ = Rect(0, 0, inside.LowerRightCorner.X, inside.LowerRightCorner.Y);
    return relative_;
}

void HeadElement::render(const Rect& parent, DocPass& pass) {
    const Rect place = placeIn(parent);
    if (place.isRectCollided(pass.clip))
        child_->render(place, pass);
}

std::string HeadElement::toHTML() const {
    return "<div align=\"center\"><u><h1>" + child_->toHTML() + "</h1></u></div>\n";
}

} // namespace skyvane
