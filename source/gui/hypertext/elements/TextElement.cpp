#include "gui/hypertext/elements/TextElement.h"

#include "core/text/Utf8.h"
#include "gui/hypertext/elements/BreakLines.h"
#include "gui/hypertext/elements/Html.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr int frameGrowth = 6;
constexpr int frameInset = 1;
constexpr int textInset = 3;

irr::core::rect<int> shrunk(irr::core::rect<int> rect, int by) {
    const irr::core::vector2d<int> step(by, by);
    return {rect.UpperLeftCorner + step, rect.LowerRightCorner - step};
}

} // namespace

TextElement::TextElement(const std::string& bytes) : text_(decodeUtf8(bytes)) {}

std::string TextElement::Print(int indent) const {
    std::string text;
    for (const Piece& piece : pieces_)
        text += (text.empty() ? "" : "|") + encodeUtf8(piece.text);
    std::replace(text.begin(), text.end(), '\n', '|');
    return dumpLine(indent, "Text \"" + text + "\"");
}

IDocElement::Rect TextElement::calcRelativeViewPort(IDocCanvas&, const Style& style, int width) {
    style_ = style;
    pieces_.clear();
    relative_ = Rect(0, 0, 0, 0);
    BrokenText broken = breakLines(text_, width, style);
    if (broken.pieces.empty())
        return relative_;
    for (BrokenText::Piece& piece : broken.pieces)
        pieces_.push_back({std::move(piece.text), piece.top, piece.bottom, nullptr});
    const int growth = style.drawFrame ? frameGrowth : 0;
    const int shown = std::min(broken.width + growth, width);
    const int left = style.centered ? width / 2 - shown / 2 : 0;
    relative_ = Rect(left, 0, left + shown, broken.height + growth);
    return relative_;
}

void TextElement::render(const Rect& parent, DocPass& pass) {
    Rect place = placeIn(parent);
    if (pieces_.empty() || !place.isRectCollided(pass.clip))
        return;
    if (style_.fillBackground)
        drawBackground(place, pass);
    if (style_.drawFrame) {
        pass.canvas.drawFrame(shrunk(place, frameInset), style_.textColor, pass.clip);
        place = shrunk(place, textInset);
    }
    for (Piece& piece : pieces_) {
        const int top = place.UpperLeftCorner.Y;
        const Rect part(place.UpperLeftCorner.X, top + piece.top, place.LowerRightCorner.X, top + piece.bottom);
        if (!part.isRectCollided(pass.clip))
            continue;
        if (!piece.mesh)
            piece.mesh = pass.canvas.makeText(piece.text, style_);
        piece.mesh->draw(part, pass.clip);
    }
}

void TextElement::drawBackground(const Rect& place, DocPass& pass) const {
    const uint32_t color = !pass.isMouseInside(place) ? style_.backgroundNormal
                           : pass.isPressed()         ? style_.backgroundPressed
                                                      : style_.backgroundHover;
    pass.canvas.drawFilledRect(place, color, pass.clip);
}

std::string TextElement::toHTML() const {
    return escapeHTML(encodeUtf8(text_));
}

} // namespace skyvane
