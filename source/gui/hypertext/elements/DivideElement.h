#pragma once

#include "gui/hypertext/elements/IDocElement.h"

#include <vector>

namespace skyvane {

/// Elements one below the other in the full width, or side by side in equal shares of it.
class DivideElement : public IDocElement {
public:
    enum class Direction { Rows, Columns };

    DivideElement(Direction direction, std::vector<std::unique_ptr<IDocElement>> children)
        : direction_(direction), children_(std::move(children)) {}

    std::string Print(int indent) const override;
    Rect calcRelativeViewPort(IDocCanvas& canvas, const Style& style, int width) override;
    void render(const Rect& parent, DocPass& pass) override;
    std::string toHTML() const override;

private:
    Rect layOutRows(IDocCanvas& canvas, const Style& style, int width);
    Rect layOutColumns(IDocCanvas& canvas, const Style& style, int width);

    Direction direction_;
    std::vector<std::unique_ptr<IDocElement>> children_;
    std::vector<Rect> cells_; ///< Where each child has its parent, relative to this element.
};

} // namespace skyvane
