#include "core/ini/ReadValue.h"

#include "core/ini/IniFile.h"

namespace skyvane {

std::string readValue(IniFile& document, const std::string& section, const std::string& key,
                      const std::string& fallback) {
    return document.isAvailable(section, key) ? document.get(section, key) : fallback;
}

} // namespace skyvane
