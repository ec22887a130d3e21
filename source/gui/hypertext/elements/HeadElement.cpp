#include "gui/hypertext/elements/HeadElement.h"

namespace skyvane {
namespace {

constexpr float headScale = 1.3f;

}

std::string HeadElement::Print(int indent) const {
    return dumpLine(indent, "Head") + child_->Print(indent + 1);
}

Style HeadElement::restyle(const IDocCanvas&, Style style) const {
    style.multiplyScale(headScale);
    style.centered = true;
    return style;
}

std::string HeadElement::toHTML() const {
    return "<div align=\"center\"><u><h1>" + child_->toHTML() + "</h1></u></div>\n";
}

} // namespace skyvane
