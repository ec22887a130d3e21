#pragma once

#include <string>

namespace skyvane {

/// Between strings in memory and their form in a document's text: the bytes that the grammar uses are written as a
/// backslash and a second byte; every other byte stays.
std::string escapeIniStrings(const std::string& text);

/// Reverses escapeIniStrings(). A backslash before any other byte gives that byte; one at the very end is dropped.
std::string unescapeIniStrings(const std::string& text);

} // namespace skyvane
