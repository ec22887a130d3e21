#include "gui/layout/EditorSchema.h"

#include "core/ini/SeparatedString.h"
#include "core/ini/UnicodeCfgParser.h"
#include "core/text/Numbers.h"

#include <algorithm>
#include <iterator>

namespace skyvane {
namespace {

constexpr std::size_t mostRows = 200;
const wchar_t* const typeWords[] = {L"INT",          L"DOUBLE", L"STRING",    L"BOOLEAN",   L"NOT_EDITABLE",
                                    L"CHARTELEMENT", L"ONE_OF", L"COLOR_RGB", L"COLOR_RGBA"};

EditorValueType typeOfWord(std::wstring word) {
    const auto blank = [](wchar_t c) { return c == L' ' || c == L'\t'; };
    word.erase(std::remove_if(word.begin(), word.end(), blank), word.end());
    const auto found = std::find(std::begin(typeWords), std::end(typeWords), word);
    return editorValueType(static_cast<int>(found - std::begin(typeWords)));
}

bool isDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

int component(const std::vector<std::string>& parts, std::size_t index, int fallback) {
    return index < parts.size() ? std::clamp(toInt(parts[index], fallback), 0, 255) : fallback;
}

} // namespace

std::vector<std::wstring> EditorRow::getAlternatives() const {
    std::vector<std::wstring> result;
    std::size_t from = 0;
    while (from <= standard.size()) {
        const std::size_t to = std::min(standard.find(L';', from), standard.size());
        if (to > from)
            result.push_back(standard.substr(from, to - from));
        from = to + 1;
    }
    return result;
}

std::vector<EditorRow> parseEditorSchema(const std::wstring& schema) {
    UnicodeCfgParser parser(4);
    parser.parse(schema.empty() || schema.back() == L';' ? schema : schema + L";");
    std::vector<EditorRow> rows;
    for (const UnicodeCfgParser::Row& row : parser.getResult())
        if (!row[0].empty() && rows.size() < mostRows)
            rows.push_back({row[0], row[1], row[2], typeOfWord(row[3])});
    return rows;
}

EditorValueType editorValueType(int number) {
    const bool known = number >= 0 && number <= static_cast<int>(EditorValueType::COLOR_RGBA);
    return known ? static_cast<EditorValueType>(number) : EditorValueType::NOT_EDITABLE;
}

bool isCorrectType(const std::wstring& text, EditorValueType type) {
    if (text.empty() || (type != EditorValueType::INT && type != EditorValueType::DOUBLE))
        return true;
    const std::size_t start = text[0] == L'-' ? 1 : 0;
    const auto points = std::count(text.begin(), text.end(), L'.');
    if (std::none_of(text.begin(), text.end(), isDigit) || points > (type == EditorValueType::DOUBLE ? 1 : 0))
        return false;
    return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(),
                       [](wchar_t c) { return isDigit(c) || c == L'.'; });
}

EditorColor EditorColor::parse(const std::string& text) {
    const std::vector<std::string> parts = parseSeperatedString(text, ',');
    return {component(parts, 0, 0), component(parts, 1, 0), component(parts, 2, 0), component(parts, 3, 255)};
}

std::string EditorColor::toText(bool withAlpha) const {
    const auto number = [](int value) { return skyvane::toText(value); };
    const std::string text = number(red) + "," + number(green) + "," + number(blue);
    return withAlpha ? text + "," + number(alpha) : text;
}

} // namespace skyvane
