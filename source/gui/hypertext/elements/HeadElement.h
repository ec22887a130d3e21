#pragma once

#include "gui/hypertext/elements/IDocElement.h"

namespace skyvane {

/// A heading: its element larger and centred.
class HeadElement : public IDocElement {
public:
    explicit HeadElement(std::unique_ptr<IDocElement> child) : child_(std::move(child)) {}

    std::string Print(int indent) const override;
    Rect calcRelativeViewPort(IDocCanvas& canvas, const Style& style, int width) override;
    void render(const Rect& parent, DocPass& pass) override;
    std::string toHTML() const override;

private:
    std::unique_ptr<IDocElement> child_;
};

} // namespace skyvane
