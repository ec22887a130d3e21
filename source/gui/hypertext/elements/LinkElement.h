#pragma once

#include "gui/hypertext/elements/IDocElement.h"

namespace skyvane {

/// A button that shows an element and opens a page.
class LinkElement : public IDocElement {
public:
    LinkElement(std::string target, std::unique_ptr<IDocElement> child)
        : target_(std::move(target)), child_(std::move(child)) {}

    std::string Print(int indent) const override;
    Rect calcRelativeViewPort(IDocCanvas& canvas, const Style& style, int width) override;
    void render(const Rect& parent, DocPass& pass) override;
    std::string toHTML() const override;

private:
    std::string target_;
    int padding_ = 0;
    std::unique_ptr<IDocElement> child_;
};

} // namespace skyvane
