#pragma once

#include <string>
#include <vector>

namespace skyvane {

/// What a row of a settings editor takes.
enum class EditorValueType {
    INT = 0,
    DOUBLE = 1,
    STRING = 2,
    BOOLEAN = 3,
    NOT_EDITABLE = 4,
    CHARTELEMENT = 5,
    ONE_OF = 6,
    COLOR_RGB = 7,
    COLOR_RGBA = 8
};

/// One setting: its key in the document, the label on the screen and the value without one there.
struct EditorRow {
    std::wstring key;
    std::wstring label;
    std::wstring standard; ///< For ONE_OF the alternatives, separated by ";"; the first is the default.
    EditorValueType type = EditorValueType::STRING;

    std::vector<std::wstring> getAlternatives() const;
};

/// Rows "key,label,default,type" separated by ";", with the escapes of UnicodeCfgParser. Rows without a key are left
/// out, an unknown type is NOT_EDITABLE, and no schema has more than 200 rows.
///
///     parseEditorSchema(L"port,Port:,4000,INT;flavor,Flavor:,Generic\\;Talos,ONE_OF;")
std::vector<EditorRow> parseEditorSchema(const std::wstring& schema);

/// A number from anywhere as a type; NOT_EDITABLE for one that names none.
EditorValueType editorValueType(int number);

/// Whether the text has the form of the type: an INT is an optional "-" and digits, a DOUBLE an optional "-" or "." and
/// digits with at most one "."; both have a digit. An empty text, and any text of the other types, has it.
bool isCorrectType(const std::wstring& text, EditorValueType type);

/// Red, green, blue and alpha of "R,G,B" or "R,G,B,A", each brought to 0..255; what is missing is 0, the alpha 255.
struct EditorColor {
    static EditorColor parse(const std::string& text);
    std::string toText(bool withAlpha) const;

    int red = 0;
    int green = 0;
    int blue = 0;
    int alpha = 255;
};

} // namespace skyvane
