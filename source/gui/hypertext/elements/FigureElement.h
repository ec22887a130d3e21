#pragma once

#include "gui/hypertext/elements/IDocElement.h"

namespace skyvane {

/// A picture in the width of the page less a margin on each side. A picture that isn't there takes no room.
class FigureElement : public IDocElement {
public:
    /// The margins are shares of the width, and of the height with them: 0 to below 0.5.
    FigureElement(std::string picture, float marginX, float marginY);

    std::string Print(int indent) const override;
    Rect calcRelativeViewPort(IDocCanvas& canvas, const Style& style, int width) override;
    void render(const Rect& parent, DocPass& pass) override;
    std::string toHTML() const override;

private:
    std::string name_;
    float marginX_;
    float marginY_;
    Rect inner_; ///< Of the picture, relative to the element.
    std::unique_ptr<IDocPicture> picture_;
};

} // namespace skyvane
