#pragma once

#include <string>

namespace skyvane {

class IniFile;

/// The option of a side view, as its section of the layout holds it.
struct SideViewSettings {
    /// Along the course, as far as airspaces are shown.
    double maxDistMetres = 10000000.0;

    /// A key that is missing or makes no sense keeps its default.
    static SideViewSettings read(IniFile& ini, const std::string& section);
};

} // namespace skyvane
