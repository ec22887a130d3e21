#pragma once

#include "chart/elements/Runway.h"

#include <string_view>

namespace skyvane {

/// What the words of a table say about the surface of a runway ("ASPH-G", "Grass / sod").
///
/// The first word that surfaces.txt knows decides; a hard surface in poor condition ("ASPH-P") is cracked. Gravel,
/// earth and the like are unknown: charts have no kind for them, and none of the others would be true.
Runway::Surface readSurface(std::string_view text);

} // namespace skyvane
