#include "chart/elements/NameWords.h"

#include <algorithm>

namespace skyvane {

namespace {

constexpr char separators[] = "\t #&'()*+,-./:;<=>[\\]_{|}~";

char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

} // namespace

std::vector<std::string> splitIntoWords(const std::string& text) {
    std::vector<std::string> words;
    size_t begin = 0;
    for (size_t end; (end = text.find_first_of(separators, begin)) != std::string::npos; begin = end + 1)
        if (end - begin > 1)
            words.push_back(text.substr(begin, end - begin));
    if (begin < text.size())
        words.push_back(text.substr(begin));
    return words;
}

bool isSameName(const std::string& a, const std::string& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return upper(x) == upper(y); });
}

} // namespace skyvane
