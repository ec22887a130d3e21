#include "core/ini/SeparatedString.h"

namespace skyvane {

std::vector<std::string> parseSeperatedString(const std::string& text, char separator) {
    std::vector<std::string> tokens;
    size_t start = 0;
    for (size_t end = text.find(separator); end != std::string::npos; end = text.find(separator, start)) {
        tokens.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    if (start < text.size())
        tokens.push_back(text.substr(start));
    return tokens;
}

} // namespace skyvane
