#pragma once

#include <string>
#include <vector>

namespace skyvane {

class Context;

/// Lets the user choose one of some buttons and waits while the program goes on. The number of the label, or -1 when
/// the window was closed meanwhile; the back key is the last one. Main thread only.
int chooseOne(Context& context, const std::vector<std::wstring>& labels, const std::wstring& title);

} // namespace skyvane
