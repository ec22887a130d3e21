#pragma once

#include "demo/region/Sites.h"

#include <string>
#include <vector>

namespace skyvane::demo {

/// A mast, a tower or a group of turbines. Its foot stands on the ground of the landscape.
struct Mast {
    std::string name;
    Spot spot;
    double footMetres;
    int heightFeet;
    bool isLit;
    bool isGroup;
};

/// Radio masts on the summits of the ridges and beside the larger towns, and a wind farm.
std::vector<Mast> raiseMasts(const Landscape& landscape, const Sites& sites);

} // namespace skyvane::demo
