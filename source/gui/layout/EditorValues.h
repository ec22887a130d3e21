#pragma once

#include "gui/layout/EditorSchema.h"

#include <optional>
#include <string>

namespace skyvane {

class IniFile;

/// The values of a settings editor in the unnamed section of a document.
///
/// A colour stands there as one text "R,G,B,A" under its key, or as a number for each channel under key.R, key.G, key.B
/// and key.A. Whichever form the document has is kept; a document with neither gets both.

/// The value of a row in UTF-8; nothing where the document has none. Creates no keys.
std::optional<std::string> readEditorValue(IniFile& document, const EditorRow& row);
void writeEditorValue(IniFile& document, const EditorRow& row, const std::string& value);

} // namespace skyvane
