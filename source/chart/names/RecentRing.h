#pragma once

#include <array>
#include <string>
#include <vector>

namespace skyvane {

/// The last fifteen destinations, most recent first. Main thread only.
class RecentRing {
public:
    static constexpr int Capacity = 15;
    /// An entry without a destination.
    static constexpr int Empty = -9999999;

    RecentRing() { ids_.fill(Empty); }

    /// Makes the id the most recent one; the order of the others stays, and the oldest falls out when it is new.
    void note(int id);
    /// Without the empty entries, most recent first.
    std::vector<int> ids() const;

    /// The file form: fifteen ids of 32 bits, little-endian, most recent first. False, and an empty ring, when the file
    /// can't be read in full.
    bool load(const std::string& path);
    /// Replaces the file in one step. False when that fails; the file is as it was then.
    bool save(const std::string& path) const;

private:
    int& at(int place) { return ids_[static_cast<size_t>((start_ + place) % Capacity)]; }
    int at(int place) const { return ids_[static_cast<size_t>((start_ + place) % Capacity)]; }

    int start_ = 0; ///< Where the most recent id stands.
    std::array<int, Capacity> ids_;
};

} // namespace skyvane
