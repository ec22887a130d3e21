#include "chart/elements/Runway.h"

#include "chart/geodesy/Headings.h"

namespace skyvane {

std::string Runway::getEndLabel(size_t end) const {
    if (!ends[end].name.empty())
        return ends[end].name;
    const uint32_t direction = directionDegrees % 360 + (end == 0 ? 0 : 180);
    return dir2Label(static_cast<float>(direction));
}

} // namespace skyvane
