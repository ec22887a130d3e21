#pragma once

#include "gui/hypertext/elements/IDocElement.h"

#include <memory>
#include <string>

namespace skyvane {

/// Longer pages aren't read.
constexpr size_t longestHypertext = 1 << 19;

/// Reads a page of the program's markup, any bytes: cleanMarkup(), then the one element that a page is. Bytes behind it
/// are ignored.
///
///     \R \T "Some words" \n  \L "index.hti" \ \T "Contents" \n \n  \n
///
/// Null for a page with an error in its syntax, for one that nests deeper than SubParserList::deepest, and for one that
/// is too long. docs/formats/hypertext.md tells the constructs.
std::unique_ptr<IDocElement> parseHypertext(const std::string& page);

} // namespace skyvane
