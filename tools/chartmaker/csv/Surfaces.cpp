#include "chartmaker/csv/Surfaces.h"

#include "chartmaker/text/SourceText.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <unordered_map>
#include <vector>

extern "C" const char chartmaker_surfaces[];

namespace skyvane {
namespace {

using SurfaceWords = std::unordered_map<std::string, Runway::Surface>;

SurfaceWords loadSurfaceWords() {
    const std::unordered_map<std::string, Runway::Surface> kinds{{"SOLID", Runway::Solid},
                                                                 {"GRASS", Runway::Grass},
                                                                 {"WATER", Runway::Water},
                                                                 {"UNKNOWN", Runway::UnknownSurface}};
    SurfaceWords words;
    std::istringstream table(chartmaker_surfaces);
    for (std::string line; std::getline(table, line);) {
        std::istringstream in(line);
        std::string kind, word;
        for (in >> kind; in >> word;)
            words.emplace(word, kinds.at(kind));
    }
    return words;
}

std::vector<std::string> wordsOf(std::string_view text) {
    std::vector<std::string> words(1);
    for (const char c : upperCase(text))
        if (c >= 'A' && c <= 'Z')
            words.back() += c;
        else if (!words.back().empty())
            words.emplace_back();
    return words;
}

} // namespace

Runway::Surface readSurface(std::string_view text) {
    static const SurfaceWords known = loadSurfaceWords();
    const std::vector<std::string> words = wordsOf(text.substr(0, LongestName));
    for (const std::string& word : words) {
        const auto found = known.find(word);
        if (found == known.end())
            continue;
        const bool isPoor = std::find_if(words.begin(), words.end(), [](const std::string& w) {
                                return w == "P" || w == "POOR" || w == "CRACKED" || w == "FAILED";
                            }) != words.end();
        return found->second == Runway::Solid && isPoor ? Runway::Cracked : found->second;
    }
    return Runway::UnknownSurface;
}

} // namespace skyvane
