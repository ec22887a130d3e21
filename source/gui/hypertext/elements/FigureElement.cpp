#include "gui/hypertext/elements/FigureElement.h"

#include "core/geometry/Rectangles.h"
#include "core/text/Numbers.h"
#include "gui/hypertext/elements/Html.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr float widestMargin = 0.49f;

float margin(float share) {
    return std::isfinite(share) ? std::clamp(share, 0.0f, widestMargin) : 0.0f;
}

} // namespace

FigureElement::FigureElement(std::string picture, float marginX, float marginY)
    : name_(std::move(picture)), marginX_(margin(marginX)), marginY_(margin(marginY)) {}

std::string FigureElement::Print(int indent) const {
    return dumpLine(indent, "Figure " + name_);
}

IDocElement::Rect FigureElement::calcRelativeViewPort(IDocCanvas& canvas, const Style&, int width) {
    relative_ = inner_ = Rect(0, 0, 0, 0);
    if (!picture_)
        picture_ = canvas.loadPicture(name_);
    if (!picture_ || width <= 0)
        return relative_;
    const auto size = picture_->size();
    const int left = static_cast<int>(static_cast<float>(width) * marginX_);
    const int shown = std::max(1, width - 2 * left);
    const double wanted = static_cast<double>(shown) * size.Height / size.Width;
    const int height = roundHalfAway(std::clamp(wanted, 1.0, static_cast<double>(highest / 64)));
    const double share = static_cast<double>(marginY_);
    const int top = roundHalfAway((height / (1.0 - 2.0 * share) - height) * 0.5);
    inner_ = Rect(left, top, left + shown, top + height);
    relative_ = Rect(0, 0, width, height + 2 * top);
    return relative_;
}

void FigureElement::render(const Rect& parent, DocPass& pass) {
    const Rect place = placeIn(parent);
    if (picture_ && hasArea(relative_) && place.isRectCollided(pass.clip))
        picture_->draw(inner_ + place.UpperLeftCorner, pass.clip);
}

std::string FigureElement::toHTML() const {
    const auto percent = [](float share) { return toText(roundHalfAway(100.0 * static_cast<double>(share))) + "%"; };
    return "<img src=\"" + escapeHTML(name_) + "\" alt=\"\" width=\"" + percent(1.0f - 2.0f * marginX_) +
           "\" hspace=\"" + percent(marginX_) + "\" vspace=\"" + percent(marginY_) + "\">\n";
}

} // namespace skyvane
