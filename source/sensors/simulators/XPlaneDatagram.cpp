#include "sensors/simulators/XPlaneDatagram.h"

namespace skyvane {

XPlaneDatagram::XPlaneDatagram(const void* bytes, size_t length)
    : taken_(length > HeaderBytes && (length - HeaderBytes) % GroupBytes == 0), in_(bytes, taken_ ? length : 0) {
    if (taken_)
        in_.take(HeaderBytes);
}

bool XPlaneDatagram::next(Group& group) {
    if (in_.remaining() < GroupBytes)
        return false;
    group.index = in_.little<int32_t>();
    for (float& value : group.values)
        value = in_.little<float>();
    return true;
}

} // namespace skyvane
