#include "chart/areas/AreaNode.h"

namespace skyvane {

bool AreaNode::addChild(int index) {
    if (count_ == 0)
        first_ = index;
    else if (count_ == 1)
        distance_ = index - first_;
    else if (index != getChild(count_))
        return false;
    ++count_;
    return true;
}

} // namespace skyvane
