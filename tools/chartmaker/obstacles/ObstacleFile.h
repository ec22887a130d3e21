#pragma once

#include "chartmaker/compile/SourceKind.h"

namespace skyvane {

/// Reads a table of obstacles into the sink: the columns of docs/formats/obstacles.md, or those of the FAA's Digital
/// Obstacle File as comma-separated values, told apart by the first line. False when it can't be read.
bool readObstacleFile(const std::string& path, const SourceContext& context);

} // namespace skyvane
