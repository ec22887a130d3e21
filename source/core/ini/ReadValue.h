#pragma once

#include <string>

namespace skyvane {

class IniFile;

/// The value of a key, or the fallback where the document has none. Unlike IniFile::get it creates nothing.
std::string readValue(IniFile& document, const std::string& section, const std::string& key,
                      const std::string& fallback = {});

} // namespace skyvane
