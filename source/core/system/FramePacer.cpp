#include "core/system/FramePacer.h"

#include "core/time/Time.h"

#include <algorithm>

namespace skyvane {

FramePacer::FramePacer() : lastFrameMilliseconds_(MilliSecs()) {}

void FramePacer::wait() {
    const int rest = FrameMilliseconds - static_cast<int>(TimeDiff(MilliSecs(), lastFrameMilliseconds_));
    if (rest > 0)
        Delay(std::min(rest, FrameMilliseconds));
    lastFrameMilliseconds_ = MilliSecs();
}

} // namespace skyvane
