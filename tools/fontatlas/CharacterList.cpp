#include "fontatlas/CharacterList.h"

#include <sstream>

namespace skyvane {

namespace {

constexpr long lastCharacter = 0x10FFFF;

/// The hexadecimal number after a position, -1 when there is none.
long codeAt(const std::string& word, size_t position) {
    if (position >= word.size())
        return -1;
    const long code = std::strtol(word.c_str() + position, nullptr, 16);
    return code > 0 && code <= lastCharacter ? code : -1;
}

} // namespace

CharacterList CharacterList::parse(const std::string& text) {
    CharacterList list;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line.substr(0, line.find('#')));
        std::string word;
        if (!(words >> word))
            continue;
        const long first = codeAt(word, 0);
        const size_t separator = word.find_first_of("-=");
        const long second = separator == std::string::npos ? first : codeAt(word, separator + 1);
        if (first < 0 || second < 0)
            continue;
        const bool substitute = separator != std::string::npos && word[separator] == '=';
        if (substitute)
            list.substitutes[static_cast<wchar_t>(first)] = static_cast<wchar_t>(second);
        for (long code = first; code <= (substitute ? first : second); ++code)
            list.characters.push_back(static_cast<wchar_t>(code));
    }
    return list;
}

} // namespace skyvane
