#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace skyvane {

/// A set of ids of chart elements that is emptied often: it keeps its memory, and clear() costs nothing.
class IdSet {
public:
    /// False when it was in already.
    bool insert(int id);
    bool contains(int id) const;
    void clear();
    size_t getSize() const { return size_; }

private:
    struct Slot {
        int id = 0;
        uint32_t round = 0; ///< Filled in that round; another one is empty.
    };

    size_t find(int id) const;
    void grow();

    std::vector<Slot> slots_; ///< A power of two, at most half full.
    size_t size_ = 0;
    uint32_t round_ = 1;
};

} // namespace skyvane
