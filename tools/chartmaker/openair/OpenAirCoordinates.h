#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <optional>
#include <string_view>

namespace skyvane {

/// Takes a position off the front of a text: "39:06:36 N 121:35:00 W", "39:06.6N 121:35.0W", "39.11N,121.58W", latitude
/// first. Degrees, minutes and seconds may be parted by colons or blanks, the last of them may have decimals. Nothing,
/// and the text as it was, when there is none.
std::optional<ChartPosition> takeCoordinates(std::string_view& text);

} // namespace skyvane
