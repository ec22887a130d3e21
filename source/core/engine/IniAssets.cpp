#include "core/engine/IniAssets.h"

#include "core/engine/AssetFiles.h"
#include "core/system/SystemManager.h"

#include <irrlicht.h>

namespace skyvane {

IniFile readIniWithAssetSupport(SystemManager* system, const std::string& path) {
    std::string content;
    readFileWithAssetSupport(system->getDevice()->getFileSystem(), system->getAbsolutePath(path), content);
    IniFile document;
    document.setFromString(content.c_str());
    return document;
}

} // namespace skyvane
