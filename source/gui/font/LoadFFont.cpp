#include "gui/font/LoadFFont.h"

#include "core/engine/IniAssets.h"
#include "core/system/SystemManager.h"
#include "gui/font/FontList.h"

namespace skyvane {

FlexibleFont* LoadFFont(SystemManager* systemManager, FlexibleFontManager* fontManager, const std::string& name) {
    const ListedFont listed = findListedFont(readIniWithAssetSupport(systemManager, "media/sdff/fonts.ini"), name);
    return loadListedFont(fontManager, systemManager->getAbsolutePath("media/sdff/" + listed.file), listed);
}

} // namespace skyvane
