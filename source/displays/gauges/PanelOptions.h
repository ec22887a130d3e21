#pragma once

#include "gui/layout/EditorSchema.h"

#include <string>
#include <vector>

namespace skyvane {

class IniFile;

/// The options of a panel's section in the form of a settings editor: a document with a key per row in its unnamed
/// section, a colour being one "R,G,B" or "R,G,B,A". Keys that the section lacks are left out.
IniFile readPanelOptions(const std::vector<EditorRow>& rows, IniFile& ini, const std::string& section);

/// The way back: the section gets the values of the rows, colours in their four keys. What the document lacks stays as
/// it was, and the alpha of a row without one is kept, opaque when there is none.
void writePanelOptions(const std::vector<EditorRow>& rows, IniFile& options, IniFile& ini, const std::string& section);

} // namespace skyvane
