#pragma once

#include <string>

namespace skyvane {

/// The URL of the documentation that was installed with the program in that folder (with a trailing slash); empty when
/// there is none.
std::string documentationUrl(const std::string& home);

} // namespace skyvane
