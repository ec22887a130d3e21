#pragma once

#include <irrlicht.h>
#include <string>

namespace skyvane {

/// Word wrap for a font: the text with line feeds, so that no line is wider than `width` pixels. `hyphenate` puts a
/// hyphen where a single word has to be cut; `trimLineEnds` removes blanks that would stand before a line feed. The
/// rules are those of wrapWords(). A null font gives the text as it is.
std::wstring makeWordWrappedText(const std::wstring& text, unsigned width, irr::gui::IGUIFont* font,
                                 bool hyphenate = true, bool trimLineEnds = true);

} // namespace skyvane
