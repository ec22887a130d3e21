#include "gui/font/FontList.h"

#include "core/log/Logger.h"
#include "core/text/Numbers.h"
#include "gui/font/FlexibleFont.h"
#include "gui/font/FlexibleFontManager.h"
#include <algorithm>

namespace skyvane {

ListedFont findListedFont(IniFile list, const std::string& name) {
    ListedFont listed;
    if (list.isAvailable(name, "File"))
        listed.file = list.get(name, "File");
    if (list.isAvailable(name, "Regular"))
        listed.fatness = static_cast<float>(std::clamp(toDouble(list.get(name, "Regular"), listed.fatness), 0.0, 1.0));
    return listed;
}

FlexibleFont* loadListedFont(FlexibleFontManager* fontManager, const std::string& path, const ListedFont& listed) {
    FlexibleFont* font = listed.file.empty() ? nullptr : fontManager->getFont(path);
    if (!font) {
        logText("No font in " + path + "\n");
        return nullptr;
    }
    font->setDefaultMaterialType(fontManager->getSDFFMaterialType());
    font->setDefaultFatness(listed.fatness);
    return font;
}

} // namespace skyvane
