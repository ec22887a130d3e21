#pragma once

#include "core/geometry/EngineMath.h"

#include <string>

namespace skyvane {

/// The angle of a forward vector's horizontal part from north (+z), turning towards east (+x), 0 to 360 degrees; 0 when
/// it points straight up or down. World frame: x east, y up, z north. The up vector doesn't count.
double CalcHeading(const irr::core::vector3d<double>& forward, const irr::core::vector3d<double>& up);

/// The label of a runway in that direction, "01" to "36"; empty when it isn't finite.
std::string dir2Label(float headingDegrees);

} // namespace skyvane
