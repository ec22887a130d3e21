#include "chart/elements/NameWords.h"

namespace skyvane {

namespace {

constexpr char separators[] = "\t #&'()*+,-./:;<=>[\\]_{|}~";

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

} // namespace skyvane
