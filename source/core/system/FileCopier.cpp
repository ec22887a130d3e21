#include "core/system/FileCopier.h"

#include "core/files/Paths.h"

namespace skyvane {

void FileCopier::OnFileRead(const irr::core::stringc&, const irr::core::stringc& fullName, unsigned, bool isDirectory) {
    if (!isDirectory)
        pairs_.emplace_back(fullName.c_str(), targetOf(fullName.c_str()));
}

void FileCopier::OnDirChange(const std::string& path) {
    makePath(targetOf(path));
}

} // namespace skyvane
