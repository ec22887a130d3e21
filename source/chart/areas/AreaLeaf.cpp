#include "chart/areas/AreaLeaf.h"

#include <algorithm>

namespace skyvane {

long AreaLeaf::getPendingCount() const {
    return static_cast<long>(elements_.size()) - static_cast<long>(staticBytes_.size() / BytesPerElement);
}

void AreaLeaf::addElement(int id, const uint8_t* staticBytes) {
    elements_.push_back(id);
    appendStaticBytes(staticBytes, BytesPerElement);
}

void AreaLeaf::appendStaticBytes(const uint8_t* bytes, size_t count) {
    staticBytes_.insert(staticBytes_.end(), bytes, bytes + count);
}

void AreaLeaf::removeElement(int id) {
    for (size_t i = 0; i < elements_.size();) {
        if (elements_[i] != id) {
            ++i;
            continue;
        }
        // Before its bytes have come the last element has none to hand on.
        if (isSane()) {
            std::copy(staticBytes_.end() - BytesPerElement, staticBytes_.end(),
                      staticBytes_.begin() + static_cast<long>(i * BytesPerElement));
            staticBytes_.resize(staticBytes_.size() - BytesPerElement);
        }
        elements_[i] = elements_.back();
        elements_.pop_back();
    }
}

void AreaLeaf::clear() {
    std::vector<int>().swap(elements_);
    std::vector<uint8_t>().swap(staticBytes_);
}

} // namespace skyvane
