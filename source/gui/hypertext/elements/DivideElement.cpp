#include "gui/hypertext/elements/DivideElement.h"

#include <algorithm>

namespace skyvane {

std::string DivideElement::Print(int indent) const {
    std::string dump = dumpLine(indent, direction_ == Direction::Rows ? "Rows" : "Columns");
    for (const auto& child : children_)
        dump += child->Print(indent + 1);
    return dump;
}

IDocElement::Rect DivideElement::calcRelativeViewPort(IDocCanvas& canvas, const Style& style, int width) {
    cells_.clear();
    relative_ = direction_ == Direction::Rows ? layOutRows(canvas, style, width) : layOutColumns(canvas, style, width);
    return relative_;
}

IDocElement::Rect DivideElement::layOutRows(IDocCanvas& canvas, const Style& style, int width) {
    int top = 0;
    for (const auto& child : children_) {
        const int height = child->calcRelativeViewPort(canvas, style, width).LowerRightCorner.Y;
        const int bottom = std::min(top + height, highest);
        cells_.emplace_back(0, top, width, bottom);
        top = bottom;
    }
    return {0, 0, width, top};
}

IDocElement::Rect DivideElement::layOutColumns(IDocCanvas& canvas, const Style& style, int width) {
    const int share = children_.empty() ? 0 : width / static_cast<int>(children_.size());
    int height = 0;
    int left = 0;
    for (const auto& child : children_) {
        const int own = child->calcRelativeViewPort(canvas, style, share).LowerRightCorner.Y;
        cells_.emplace_back(left, 0, left + share, own);
        left += share;
        height = std::max(height, own);
    }
    return {0, 0, width, height};
}

/// Rows end below each other, so those above the clip are found without a look at each.
void DivideElement::render(const Rect& parent, DocPass& pass) {
    const Rect place = placeIn(parent);
    if (!place.isRectCollided(pass.clip))
        return;
    const int above = pass.clip.UpperLeftCorner.Y - place.UpperLeftCorner.Y;
    const int below = pass.clip.LowerRightCorner.Y - place.UpperLeftCorner.Y;
    const bool rows = direction_ == Direction::Rows;
    const auto first =
        !rows ? cells_.begin() : std::partition_point(cells_.begin(), cells_.end(), [above](const Rect& cell) {
            return cell.LowerRightCorner.Y < above;
        });
    for (auto cell = first; cell != cells_.end() && !(rows && cell->UpperLeftCorner.Y > below); ++cell)
        children_[static_cast<size_t>(cell - cells_.begin())]->render(*cell + place.UpperLeftCorner, pass);
}

std::string DivideElement::toHTML() const {
    std::string html = "<table width=\"100%\" style=\"table-layout:fixed\">\n";
    const bool rows = direction_ == Direction::Rows;
    if (!rows)
        html += "<tr>";
    for (const auto& child : children_)
        html += (rows ? "<tr><td>" : "<td valign=\"top\">") + child->toHTML() + (rows ? "</td></tr>\n" : "</td>");
    if (!rows)
        html += "</tr>\n";
    return html + "</table>\n";
}

} // namespace skyvane
