#pragma once

#include "gui/hypertext/elements/IDocElement.h"

#include <memory>

namespace skyvane {

/// One element in another style, at the place that it takes itself.
class RestyledElement : public IDocElement {
public:
    explicit RestyledElement(std::unique_ptr<IDocElement> child) : child_(std::move(child)) {}

    Rect calcRelativeViewPort(IDocCanvas& canvas, const Style& style, int width) override;
    void render(const Rect& parent, DocPass& pass) override;

protected:
    /// What the element's surroundings have, changed.
    virtual Style restyle(const IDocCanvas& canvas, Style style) const = 0;

    std::unique_ptr<IDocElement> child_;
};

} // namespace skyvane
