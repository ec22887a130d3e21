#include "chartmaker/openair/OpenAirAltitude.h"

#include "chart/geodesy/EarthConstants.h"
#include "chartmaker/text/SourceText.h"
#include "core/text/Numbers.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace skyvane {
namespace {

enum class Word { Surface, Unlimited, FlightLevel, Feet, Metres, AboveSea };

const std::unordered_map<std::string, Word> knownWords{
    {"SFC", Word::Surface},     {"GND", Word::Surface},     {"SURFACE", Word::Surface},     {"GROUND", Word::Surface},
    {"AGL", Word::Surface},     {"ASFC", Word::Surface},    {"AAL", Word::Surface},         {"UNL", Word::Unlimited},
    {"UNLIM", Word::Unlimited}, {"UNLTD", Word::Unlimited}, {"UNLIMITED", Word::Unlimited}, {"FL", Word::FlightLevel},
    {"F", Word::Feet},          {"FT", Word::Feet},         {"FEET", Word::Feet},           {"M", Word::Metres},
    {"MT", Word::Metres},       {"MTR", Word::Metres},      {"METERS", Word::Metres},       {"METRES", Word::Metres},
    {"MSL", Word::AboveSea},    {"AMSL", Word::AboveSea},   {"ASL", Word::AboveSea},        {"ALT", Word::AboveSea},
    {"QNH", Word::AboveSea},    {"STD", Word::AboveSea},
};

/// What the text says, word by word.
struct Reading {
    std::optional<double> number;
    bool has[6] = {};

    bool operator[](Word word) const { return has[static_cast<size_t>(word)]; }
};

std::optional<double> takeNumber(std::string_view& text) {
    constexpr double least = -2000.0, greatest = 1e6;
    const size_t length = std::min(text.find_first_not_of("0123456789.-"), text.size());
    const auto number = readNumber(text.substr(0, length), least, greatest);
    text.remove_prefix(length);
    return number;
}

/// The longest known word at the front: words may stand together ("2500FTMSL").
std::optional<Word> takeWord(std::string_view& text) {
    constexpr size_t longest = 9;
    for (size_t length = std::min(longest, text.size()); length > 0; --length) {
        const auto word = knownWords.find(std::string(text.substr(0, length)));
        if (word == knownWords.end())
            continue;
        text.remove_prefix(length);
        return word->second;
    }
    return std::nullopt;
}

std::optional<Reading> readWords(std::string_view text) {
    Reading reading;
    for (text = trimmed(text); !text.empty(); text = trimmed(text)) {
        const bool isNumber = !reading.number && (text[0] == '-' || (text[0] >= '0' && text[0] <= '9'));
        const std::optional<Word> word = isNumber ? std::nullopt : takeWord(text);
        if (isNumber)
            reading.number = takeNumber(text);
        if (isNumber ? !reading.number : !word)
            return std::nullopt;
        if (word)
            reading.has[static_cast<size_t>(*word)] = true;
    }
    return reading;
}

} // namespace

std::optional<AirspaceLimit> parseAirspaceLimit(std::string_view text) {
    constexpr size_t longest = 64;
    const std::optional<Reading> reading = text.size() > longest ? std::nullopt : readWords(upperCase(text));
    if (!reading)
        return std::nullopt;
    const Reading& read = *reading;
    if (!read.number) {
        const bool isSurface = read[Word::Surface] && !read[Word::Unlimited];
        if (read[Word::FlightLevel] || read[Word::Surface] == read[Word::Unlimited])
            return std::nullopt;
        return AirspaceLimit{isSurface ? AirspaceLimit::Surface : AirspaceLimit::Unlimited, 0, !isSurface};
    }
    if (read[Word::Unlimited] || (read[Word::Surface] && read[Word::AboveSea]))
        return std::nullopt;
    if (read[Word::FlightLevel]) {
        const bool isOdd = read[Word::Surface] || read[Word::Metres] || *read.number < 0.0 || *read.number > 2000.0;
        const AirspaceLimit level{AirspaceLimit::FlightLevel, roundHalfAway(*read.number * 100.0), true};
        return isOdd ? std::nullopt : std::optional<AirspaceLimit>(level);
    }
    const double feet = read[Word::Metres] ? *read.number / MetresPerFoot : *read.number;
    if (*read.number == 0.0 && !read[Word::AboveSea])
        return AirspaceLimit{AirspaceLimit::Surface, 0, false};
    return AirspaceLimit{AirspaceLimit::Altitude, roundHalfAway(feet), !read[Word::Surface]};
}

} // namespace skyvane
