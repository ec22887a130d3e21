#pragma once

#include <irrlicht.h>
#include <string>

namespace skyvane {

/// A line that is too wide for `width` pixels cut, with an ellipsis at its end. The rules are those of shortenText(). A
/// null font gives the line as it is.
std::wstring makeShortenedText(const std::wstring& line, unsigned width, irr::gui::IGUIFont* font);

} // namespace skyvane
