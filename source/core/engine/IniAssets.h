#pragma once

#include "core/ini/IniFile.h"

#include <string>

namespace skyvane {

class SystemManager;

/// A document from the engine's file system; the path goes through SystemManager::getAbsolutePath. A file that can't be
/// opened gives an empty document.
IniFile readIniWithAssetSupport(SystemManager* system, const std::string& path);

} // namespace skyvane
