#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <string>

namespace skyvane::demo {

// Numbers as the files hold them: with a point, whatever the locale.

std::string fixed(double value, int digits);
/// Feet from metres, to the nearest whole.
std::string feet(double metres);
/// "42:19:54 N 028:31:07 W", as OpenAir has it.
std::string degreesMinutesSeconds(const ChartPosition& position);
/// A name that can't be taken for a real one.
std::string fictional(const std::string& name);

} // namespace skyvane::demo
