#pragma once

#include "gui/hypertext/elements/IDocElement.h"

namespace skyvane {

/// Its element in another size and colour, centred or not.
class StyleElement : public IDocElement {
public:
    struct Change {
        int size = 0;       ///< Exponent of 1.1.
        uint32_t color = 0; ///< 0xAARRGGBB
        bool centered = false;
    };

    StyleElement(const Change& change, std::unique_ptr<IDocElement> child)
        : change_(change), child_(std::move(child)) {}

    std::string Print(int indent) const override;
    /// A colour that can't be told from the page's becomes one that can.
    Rect calcRelativeViewPort(IDocCanvas& canvas, const Style& style, int width) override;
    void render(const Rect& parent, DocPass& pass) override;
    std::string toHTML() const override;

private:
    Change change_;
    std::unique_ptr<IDocElement> child_;
};

} // namespace skyvane
