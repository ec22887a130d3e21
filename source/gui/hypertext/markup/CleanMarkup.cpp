#include "gui/hypertext/markup/CleanMarkup.h"

namespace skyvane {

std::string cleanMarkup(const std::string& page) {
    std::string cleaned;
    cleaned.reserve(page.size());
    bool quoted = false;
    char before = '\n';
    for (size_t i = 0; i < page.size(); ++i) {
        const char c = page[i];
        if (c == '#' && before == '\n') {
            i = page.find('\n', i);
            if (i == std::string::npos)
                break;
            continue; // `before` is a line feed still
        }
        const bool isSpace = c == ' ' || c == '\t' || c == '\n' || c == '\r';
        if (c == '"' && before != '\\')
            quoted = !quoted;
        else if (quoted || !isSpace)
            cleaned += c;
        before = c;
    }
    return cleaned;
}

} // namespace skyvane
