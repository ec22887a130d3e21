#include "displays/mapmath/IdSet.h"

#include <utility>

namespace skyvane {
namespace {

constexpr size_t firstSlots = 1024;
constexpr uint32_t spread = 2654435769u; // 2^32 over the golden ratio

} // namespace

/// The id's slot, or the one that it would get. There are slots.
size_t IdSet::find(int id) const {
    const size_t mask = slots_.size() - 1;
    size_t at = (static_cast<uint32_t>(id) * spread >> 7) & mask;
    while (slots_[at].round == round_ && slots_[at].id != id)
        at = (at + 1) & mask;
    return at;
}

bool IdSet::contains(int id) const {
    return !slots_.empty() && slots_[find(id)].round == round_;
}

bool IdSet::insert(int id) {
    if (2 * (size_ + 1) > slots_.size())
        grow();
    Slot& slot = slots_[find(id)];
    if (slot.round == round_)
        return false;
    slot = {id, round_};
    ++size_;
    return true;
}

void IdSet::grow() {
    std::vector<Slot> old(slots_.empty() ? firstSlots : 2 * slots_.size());
    std::swap(old, slots_);
    for (const Slot& slot : old)
        if (slot.round == round_)
            slots_[find(slot.id)] = slot;
}

void IdSet::clear() {
    size_ = 0;
    if (++round_ != 0)
        return;
    slots_.assign(slots_.size(), Slot());
    round_ = 1;
}

} // namespace skyvane
