#pragma once

#include "gui/hypertext/elements/RestyledElement.h"

namespace skyvane {

/// A heading: its element larger and centred.
class HeadElement : public RestyledElement {
public:
    using RestyledElement::RestyledElement;

    std::string Print(int indent) const override;
    std::string toHTML() const override;

protected:
    Style restyle(const IDocCanvas& canvas, Style style) const override;
};

} // namespace skyvane
