#include "displays/visionmath/bars/Tape.h"

namespace skyvane {

double chooseStep(double step, double pixelsPerUnit, double leastPixels) {
    constexpr double factors[] = {1.0, 2.0, 5.0, 10.0, 20.0, 50.0, 100.0};
    for (const double factor : factors)
        if (step * factor * pixelsPerUnit >= leastPixels)
            return step * factor;
    return step * 100.0;
}

} // namespace skyvane
