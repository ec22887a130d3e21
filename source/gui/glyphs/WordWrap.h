#pragma once

#include <string>

namespace skyvane {

/// Tells wrapWords() how wide a piece of a line is.
class ITextWidth {
public:
    virtual ~ITextWidth() = default;
    virtual unsigned widthOf(const std::wstring& line) const = 0;
};

struct WordWrapOptions {
    /// A word that has to be cut gets a hyphen.
    bool hyphenate = true;
    /// Blanks and tabs before each line feed and at the end go, so that centred lines stand in the middle.
    bool trimLineEnds = true;
};

/// The text with line feeds, so that no line is wider than `width`.
///
/// A line that becomes too wide breaks at its last blank or tab, which the line feed replaces. A single word that is
/// too wide is cut one character before the limit (further back where the hyphen wouldn't fit). Each line keeps at
/// least one character, however narrow the width. Line feeds of the text stay.
std::wstring wrapWords(const std::wstring& text, unsigned width, const ITextWidth& measure,
                       const WordWrapOptions& options);

} // namespace skyvane
