#pragma once

namespace skyvane {

/// What an edit box takes, told by the id of its element; on-screen input is chosen by it.
enum EditBoxId : int {
    IntegerEdit = -1,
    DecimalEdit = -2,
    StringEdit = -3,
    NoEdit = -4,
    MultilineEdit = -5,
    DestinationEdit = -6,
    TerminalEdit = -7
};

/// What happens to an edit box's text when it takes the focus.
struct EditBoxMarking {
    bool cursorToEnd = false;
    bool selectAll = false; ///< The first character typed replaces the text.
};

EditBoxMarking markingOf(int id);

} // namespace skyvane
