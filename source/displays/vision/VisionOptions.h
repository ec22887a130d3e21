#pragma once

#include "displays/visionmath/VisionSettings.h"

#include <string>

namespace skyvane {

class Context;

/// What the pilot may change about a running synthetic view.
struct VisionChoice {
    VisionSwitches switches;
    bool renderTrueMagHeading = false;
};

/// Asks in a window over the instruments, which go on. True when "Ok" ended it: the choice is the pilot's then.
bool askVisionOptions(Context& context, VisionChoice& choice);

/// Writes a choice to the panel's section of the configuration; the pilot hears of a failure.
void storeVisionOptions(Context& context, const std::string& section, const VisionChoice& choice);

} // namespace skyvane
