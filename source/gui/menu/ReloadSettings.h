#pragma once

namespace skyvane {

class Context;
class IniFile;

/// Saves the document as data/config.ini. On failure a box tells it, and the answer is false.
bool saveConfig(Context& context, const IniFile& config);

/// Ends all panels, the menu among them, and makes those of the document, fonts too.
void reloadPanels(Context& context, IniFile& config);

/// Asks, and on "Yes" writes the standard document as data/config.ini and loads everything from it.
void restoreStandardConfig(Context& context);

} // namespace skyvane
