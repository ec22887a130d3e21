#pragma once

#include "displays/mapmath/MapSettings.h"

namespace skyvane {

class Context;

/// Lets the pilot change the settings of a running map, while the frames go on. False when he cancelled; else
/// `settings` has what he chose. Main thread only.
bool askMapOptions(Context& context, MapSettings& settings);

} // namespace skyvane
