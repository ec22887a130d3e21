#pragma once

#include <string>

namespace skyvane {

/// A text as HTML shows it: what HTML would take for its own is escaped, line feeds break the line.
std::string escapeHTML(const std::string& text);

/// A page around a body that is HTML already; the title is plain text. HTML 4.01 Transitional, UTF-8.
std::string makeHTMLPage(const std::string& title, const std::string& body);

} // namespace skyvane
