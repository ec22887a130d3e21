#pragma once

#include "gui/hypertext/elements/RestyledElement.h"

namespace skyvane {

/// Its element in another size and colour, centred or not. A colour that can't be told from the page's becomes one that
/// can.
class StyleElement : public RestyledElement {
public:
    struct Change {
        int size = 0;       ///< Exponent of 1.1.
        uint32_t color = 0; ///< 0xAARRGGBB
        bool centered = false;
    };

    StyleElement(const Change& change, std::unique_ptr<IDocElement> child)
        : RestyledElement(std::move(child)), change_(change) {}

    std::string Print(int indent) const override;
    std::string toHTML() const override;

protected:
    Style restyle(const IDocCanvas& canvas, Style style) const override;

private:
    Change change_;
};

} // namespace skyvane
