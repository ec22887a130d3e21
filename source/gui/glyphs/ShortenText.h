#pragma once

#include "gui/glyphs/WordWrap.h"

namespace skyvane {

/// A line as it is when it is no wider than `width`, else as much of its start as fits with an ellipsis behind it. The
/// ellipsis alone where not even a character fits.
std::wstring shortenText(const std::wstring& line, unsigned width, const ITextWidth& measure);

} // namespace skyvane
