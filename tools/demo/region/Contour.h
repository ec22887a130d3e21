#pragma once

#include "demo/region/Spot.h"

#include <functional>
#include <vector>

namespace skyvane::demo {

struct ContourBox {
    Spot from;
    Spot to;
    double step; ///< Metres between the samples.
};

/// The closed lines on which a field of the plane is 0, with what is above on their left; without a closing point. The
/// field counts as negative round the box, so every line closes. Marching squares.
std::vector<std::vector<Spot>> traceContours(const ContourBox& box, const std::function<double(Spot)>& field);

/// Square metres, positive when the ring runs to the left.
double signedArea(const std::vector<Spot>& ring);

} // namespace skyvane::demo
