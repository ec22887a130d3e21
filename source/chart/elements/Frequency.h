#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace skyvane {

/// A radio frequency in two parts: 118.275 MHz is 118 and 275.
struct Frequency {
    int32_t megahertz = 0;
    int32_t kilohertz = 0;
};

inline bool operator==(const Frequency& a, const Frequency& b) {
    return a.megahertz == b.megahertz && a.kilohertz == b.kilohertz;
}

/// Frequencies by the name of their service. An entry without any speaks by its name alone.
using FrequencyMap = std::map<std::string, std::vector<Frequency>>;

} // namespace skyvane
