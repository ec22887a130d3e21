#include "gui/menu/Documentation.h"

#include "core/files/Paths.h"

namespace skyvane {

std::string documentationUrl(const std::string& home) {
    for (const char* file : {"docs/index.html", "docs/README.md", "README.md"})
        if (fileExist(home + file))
            return "file://" + home + file;
    return {};
}

} // namespace skyvane
