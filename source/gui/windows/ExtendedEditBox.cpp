#include "gui/windows/ExtendedEditBox.h"

#include "core/text/Utf8.h"

namespace skyvane {

void ExtendedEditBox::setDefaults() {
    getElement()->setText(decodeUtf8(getDefaultText()).c_str());
}

} // namespace skyvane
