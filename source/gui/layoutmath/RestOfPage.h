#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

/// The largest part of a page that something lying over it leaves free: beside, above or below it, so far away. The
/// whole page where it covers nothing, or everything.
irr::core::rect<int> restOfPage(const irr::core::rect<int>& page, const irr::core::rect<int>& cover, int gap);

} // namespace skyvane
