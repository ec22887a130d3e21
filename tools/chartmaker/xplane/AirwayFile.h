#pragma once

#include "chartmaker/compile/SourceKind.h"

namespace skyvane {

/// Reads an airway file, earth_awy.dat or awy.dat(.gz), into the sink, and notes for the fixes and navaids at its ends
/// which airways use them. False when it can't be read.
///
/// Up to version 1000 a row tells where its ends lie. From 1100 on it names them by ident, ICAO region and kind: they
/// are looked up among what was read before; of several with one ident those that lie closest together are meant. A
/// segment whose ends aren't known, or lie farther apart than LongestSegmentMetres, is refused.
bool readAirwayFile(const std::string& path, const SourceContext& context);

constexpr double LongestSegmentMetres = 2500000.0;

} // namespace skyvane
