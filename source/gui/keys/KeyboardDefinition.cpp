#include "gui/keys/KeyboardDefinition.h"

#include "gui/keys/EditBoxId.h"
#include "gui/keys/KeyCodes.h"

namespace skyvane {
namespace {

using Row = std::vector<KeyDefinition>;

/// Keys that show their characters: those without and those with shift, in the same order.
Row keys(const std::wstring& characters, const std::wstring& shifted) {
    Row row;
    for (std::size_t i = 0; i < characters.size(); ++i)
        row.push_back({characters[i], shifted[i], keyCodeOf(characters[i]), 1.0, ""});
    return row;
}

Row keys(const std::wstring& characters) {
    return keys(characters, characters);
}

KeyDefinition sign(int keyCode, const char* image, double width = 1.0, wchar_t character = 0) {
    return {character, character, keyCode, width, std::string("media/") + image + ".png"};
}

Row operator+(Row row, const Row& more) {
    row.insert(row.end(), more.begin(), more.end());
    return row;
}

const KeyDefinition shift = sign(ShiftKey, "shift");
const KeyDefinition left = sign(LeftKey, "arrow_left");
const KeyDefinition right = sign(RightKey, "arrow_right");
const KeyDefinition blank = sign(SpaceKey, "alpha_dot", 4.0, L' ');
const KeyDefinition backspace = sign(BackspaceKey, "backspace", 1.0, 8);

KeyDefinition enter(double width) {
    return sign(EnterKey, "enter", width, 1);
}

KeyboardDefinition textKeyboard() {
    KeyboardDefinition text;
    text.columns = 10;
    text.editBoxIds = {StringEdit, MultilineEdit, DestinationEdit};
    text.rows = {keys(L"1234567890", L"!@#$/^&*()"), keys(L"qwertyuiop", L"QWERTYUIOP"),
                 keys(L"asdfghjkl=", L"ASDFGHJKL+"), keys(L"zxcvbnm,.-", L"ZXCVBNM;:_"),
                 Row{shift, left, right, blank, enter(2.0), backspace}};
    return text;
}

KeyboardDefinition numberPad() {
    KeyDefinition zero = keys(L"0").front();
    zero.width = 2.0;
    KeyboardDefinition pad;
    pad.columns = 4;
    pad.aspect = 2.0;
    pad.editBoxIds = {IntegerEdit, DecimalEdit};
    pad.rows = {keys(L"789") + Row{backspace}, keys(L"456."), keys(L"123") + Row{enter(1.0)}, Row{zero, left, right}};
    return pad;
}

} // namespace

const std::vector<KeyboardDefinition> keyBoardDefs = {textKeyboard(), numberPad()};

} // namespace skyvane
