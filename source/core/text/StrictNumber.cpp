#include "core/text/StrictNumber.h"

#include <charconv>
#include <cmath>

namespace skyvane {

bool parseStrictNumber(std::string_view text, double& value) {
    const char* const end = text.data() + text.size();
    double read = 0.0;
    const auto result = std::from_chars(text.data(), end, read);
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(read))
        return false;
    value = read;
    return true;
}

} // namespace skyvane
