#pragma once

#include <string>

namespace skyvane {

class Context;
class IniFile;

/// The schema of the general settings, with the fonts of that list to choose from.
std::wstring generalSetupSchemaFor(const IniFile& fontList);

/// Lets the user edit the general settings of data/config.ini, and on "Ok" saves them and loads the panels anew. The
/// menu is another one then. Main thread only.
void runGeneralSetup(Context& context);

} // namespace skyvane
