#include "chartmaker/text/SourceText.h"

#include "core/text/Numbers.h"
#include "core/text/StrictNumber.h"
#include "core/text/Utf8.h"

namespace skyvane {
namespace {

constexpr std::string_view blanks = " \t\r\n\v\f";

/// Windows' code page 1252 from 0x80 to 0x9f, where it differs from Latin-1; "?" for what it leaves free.
constexpr wchar_t ofCodePage[] =
    L"\u20ac?\u201a\u0192\u201e\u2026\u2020\u2021\u02c6\u2030\u0160\u2039\u0152?\u017d?"
    L"?\u2018\u2019\u201c\u201d\u2022\u2013\u2014\u02dc\u2122\u0161\u203a\u0153?\u017e\u0178";

std::string codePageToUtf8(std::string_view text) {
    std::wstring wide;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        wide += byte >= 0x80 && byte < 0xa0 ? ofCodePage[byte - 0x80] : static_cast<wchar_t>(byte);
    }
    return encodeUtf8(wide);
}

/// Where a text may be cut without splitting a character.
size_t cutAt(const std::string& text, size_t most) {
    while (most > 0 && (static_cast<unsigned char>(text[most]) & 0xc0) == 0x80)
        --most;
    return most;
}

} // namespace

std::string_view trimmed(std::string_view text) {
    const size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::vector<std::string_view> splitAtBlanks(std::string_view text, size_t most) {
    std::vector<std::string_view> pieces;
    for (text = trimmed(text); !text.empty(); text = trimmed(text)) {
        const size_t end = pieces.size() + 1 < most ? text.find_first_of(blanks) : std::string_view::npos;
        pieces.push_back(text.substr(0, end));
        text.remove_prefix(pieces.back().size());
    }
    return pieces;
}

std::string upperCase(std::string_view text) {
    std::string upper(text);
    for (char& c : upper)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return upper;
}

std::string cleanText(std::string_view text, size_t most) {
    const std::string bytes(trimmed(text));
    std::string clean = encodeUtf8(decodeUtf8(bytes)) == bytes ? bytes : codePageToUtf8(bytes);
    if (clean.size() > most)
        clean.resize(cutAt(clean, most));
    for (char& c : clean)
        if (static_cast<unsigned char>(c) < ' ' || c == '\x7f')
            c = ' ';
    return clean;
}

void addRemark(std::string& remarks, const std::string& line) {
    if (line.empty() || remarks.size() + line.size() >= LongestRemarks)
        return;
    if (!remarks.empty())
        remarks += '\n';
    remarks += line;
}

std::optional<double> readNumber(std::string_view text, double least, double greatest) {
    double value = 0.0;
    if (!parseStrictNumber(trimmed(text), value) || value < least || value > greatest)
        return std::nullopt;
    return value;
}

std::optional<int> readWhole(std::string_view text, int least, int greatest) {
    const std::optional<double> value = readNumber(text, least, greatest);
    return value ? std::optional<int>(roundHalfAway(*value)) : std::nullopt;
}

std::optional<ChartPosition> readPosition(std::string_view latitude, std::string_view longitude) {
    const std::optional<double> north = readNumber(latitude, -90.0, 90.0), east = readNumber(longitude, -180.0, 360.0);
    return north && east ? std::optional<ChartPosition>(ChartPosition(*east, *north)) : std::nullopt;
}

} // namespace skyvane
