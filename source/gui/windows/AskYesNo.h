#pragma once

#include <string>

namespace skyvane {

class Context;

/// Asks in a message box with "Yes" and "No", and waits while the program goes on. False for "No", and when the window
/// was closed meanwhile. The context runs frames already; main thread only.
bool askYesNo(Context& context, const std::wstring& question);

} // namespace skyvane
