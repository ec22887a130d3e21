#pragma once

#include "gui/windows/ExtendedGUIElement.h"

namespace skyvane {

/// An edit box that knows its default.
class ExtendedEditBox : public ExtendedGUIElement {
public:
    using ExtendedGUIElement::ExtendedGUIElement;
    /// Writes the default into the box.
    void setDefaults() override;
};

} // namespace skyvane
