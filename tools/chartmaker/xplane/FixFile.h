#pragma once

#include "chartmaker/compile/SourceKind.h"

namespace skyvane {

/// Reads a fix file, earth_fix.dat or fix.dat(.gz), into the sink. False when it can't be read.
///
/// Up to version 1000 a row is latitude, longitude, ident. From 1100 on the terminal area ("ENRT" for none), the ICAO
/// region and, since 1101, the type of ARINC 424 follow. An uncharted fix isn't public, a VFR fix is a reporting point.
/// Fixes of no terminal area are for low altitudes; which airways add to that, their file tells.
bool readFixFile(const std::string& path, const SourceContext& context);

} // namespace skyvane
