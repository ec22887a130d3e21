#pragma once

namespace skyvane {

/// How urgent a message on the displays is, and so its colour: green, grey, yellow, red.
enum MESSAGECOLOR { MESSAGE_GREEN = 0, MESSAGE_GREY = 1, MESSAGE_YELLOW = 2, MESSAGE_RED = 3 };

} // namespace skyvane
