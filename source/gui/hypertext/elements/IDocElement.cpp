#include "gui/hypertext/elements/IDocElement.h"

#include "core/text/Numbers.h"

namespace skyvane {

std::string IDocElement::dumpLine(int indent, const std::string& what) const {
    const auto corner = [](const irr::core::vector2d<int>& at) { return toText(at.X) + "," + toText(at.Y); };
    return std::string(static_cast<size_t>(indent), ' ') + what + " [" + corner(relative_.UpperLeftCorner) + " " +
           corner(relative_.LowerRightCorner) + "]\n";
}

} // namespace skyvane
