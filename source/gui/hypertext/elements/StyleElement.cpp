#include "gui/hypertext/elements/StyleElement.h"

#include "core/text/Numbers.h"

#include <algorithm>
#include <cstdio>

namespace skyvane {

std::string StyleElement::Print(int indent) const {
    return dumpLine(indent, "Style " + toText(change_.size) + (change_.centered ? " centred" : "")) +
           child_->Print(indent + 1);
}

Style StyleElement::restyle(const IDocCanvas& canvas, Style style) const {
    style.textColor = readableColor(change_.color, canvas.getPageColor());
    style.centered = change_.centered;
    style.applySize(change_.size);
    return style;
}

std::string StyleElement::toHTML() const {
    char font[64];
    std::snprintf(font, sizeof font, "<font color=\"#%06x\" size=\"%+d\">", change_.color & 0xffffffu,
                  std::clamp(change_.size, -6, 6));
    const std::string inside = font + child_->toHTML() + "</font>";
    return change_.centered ? "<div align=\"center\">" + inside + "</div>\n" : inside;
}

} // namespace skyvane
