#pragma once

#include <string>

namespace skyvane {

/// The version of the configuration. Documents of any other version are replaced by the standard ones.
constexpr unsigned ConfigMajor = 2;
constexpr unsigned ConfigMinor = 9;

/// "2.9"
inline std::string configVersionText() {
    return std::to_string(ConfigMajor) + "." + std::to_string(ConfigMinor);
}

} // namespace skyvane
