#pragma once

#include <string>

namespace skyvane {

class FlexibleFont;
class FlexibleFontManager;
class SystemManager;

/// The font of this name in media/sdff/fonts.ini ("File", "Regular"), with the distance field material and its own
/// fatness. Null, with a line in the log, when the list doesn't know the name or its file can't be used. The manager
/// owns the font.
FlexibleFont* LoadFFont(SystemManager* systemManager, FlexibleFontManager* fontManager, const std::string& name);

} // namespace skyvane
