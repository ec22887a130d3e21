#pragma once

#include <functional>
#include <string>

namespace skyvane {

/// A text that fits its place: as it is, or without the beginning of what follows its first `head` characters, for
/// which "..." stands then. So of the path of a file the name stays, which tells it from others. `fits` says whether a
/// text has room.
std::wstring keepEnd(const std::wstring& text, size_t head, const std::function<bool(const std::wstring&)>& fits);

/// A text that fits its place: as it is, or as much of its beginning as has room with "..." behind it, which stands
/// alone where nothing has.
std::wstring keepBegin(const std::wstring& text, const std::function<bool(const std::wstring&)>& fits);

} // namespace skyvane
