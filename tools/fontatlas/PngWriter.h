#pragma once

#include "fontatlas/DistanceField.h"
#include <string>

namespace skyvane {

/// A PNG picture, white all over, with these values as its alpha channel.
std::string makeWhitePng(const GrayImage& alpha);

} // namespace skyvane
