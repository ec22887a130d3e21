#pragma once

#include <optional>
#include <string>

namespace skyvane {

class Context;

/// Questions that wait for their answer while the program goes on. The context runs frames already; main thread only.

/// A message box with two buttons; true for the positive one, false also when the window was closed meanwhile.
bool askInBox(Context& context, const std::wstring& text, const std::wstring& positive, const std::wstring& negative);

/// A message box with "Ok".
void tellInBox(Context& context, const std::wstring& text);

/// A text, not empty, that the pilot enters; nothing after "Cancel".
std::optional<std::wstring> askForText(Context& context, const std::wstring& title, const std::wstring& text,
                                       const std::wstring& standard);

/// The same for a number, with a line below the edit box that shows an example. Whatever was typed comes back.
std::optional<std::wstring> askForNumber(Context& context, const std::wstring& title, const std::wstring& text,
                                         const std::wstring& standard, const std::wstring& example);

} // namespace skyvane
