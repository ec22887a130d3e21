#pragma once

namespace skyvane {

/// Codes of the keys that on-screen input sends: the engine's, where it has a key of that kind.
enum KeyCode : int {
    BackspaceKey = 8,
    EnterKey = 13,
    ShiftKey = 16,
    SpaceKey = 32,
    EndKey = 35,
    LeftKey = 37,
    RightKey = 39,
    LetterAKey = 65,
    EqualsKey = 107,
    CommaKey = 188,
    MinusKey = 189,
    PeriodKey = 190
};

/// The code of the key that types the character without shift; letters of either case, digits and `=,-.`; 0 for others.
int keyCodeOf(wchar_t character);

} // namespace skyvane
