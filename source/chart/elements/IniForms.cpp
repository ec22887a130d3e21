#include "chart/elements/IniForms.h"

#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>

namespace skyvane {

namespace {

template <class T>
bool parse(const std::string& text, T& value) {
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    if constexpr (std::is_floating_point<T>::value) {
        const T read = static_cast<T>(toDouble(text, none));
        if (!std::isfinite(read))
            return false;
        value = read;
        return true;
    } else {
        const size_t begin = text.find_first_not_of(" \t");
        if (begin == std::string::npos)
            return false;
        T read{};
        const bool plus = text[begin] == '+';
        const auto result = std::from_chars(text.data() + begin + (plus ? 1 : 0), text.data() + text.size(), read);
        if (result.ec != std::errc())
            return false;
        value = read;
        return true;
    }
}

// The shortest text that reads back as the same number of the same width.
template <class T>
std::string print(T value) {
    char buffer[64];
    return std::string(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
}

} // namespace

bool IniReader::has(const std::string& key) const {
    return ini_.isAvailable(section_, key);
}

bool IniReader::hasSection(const std::string& section) const {
    return ini_.isSectionAvailable(section);
}

std::string IniReader::get(const std::string& key) const {
    return has(key) ? ini_.get(section_, key) : std::string();
}

template <class T>
void IniReader::number(const std::string& key, T& value) {
    parse(get(key), value);
}

void IniReader::flag(const std::string& key, bool& value) {
    value = toBool(get(key), value);
}

void IniReader::text(const std::string& key, std::string& value) {
    if (has(key))
        value = get(key);
}

void IniReader::position(ChartPosition& position) {
    number("Long", position.longitude);
    number("Lat", position.latitude);
}

template <class T>
void IniReader::optional(const std::string& key, T& value, bool& isKnown) {
    isKnown = parse(get(key), value);
}

void IniReader::optionalPosition(const std::string& index, ChartPosition& position, bool& isKnown) {
    const bool longitude = parse(get("Long" + index), position.longitude);
    isKnown = parse(get("Lat" + index), position.latitude) && longitude;
    if (!isKnown)
        position = {};
}

template <class T>
void IniReader::choice(const std::string& key, T& value, const std::vector<std::string>& table, T fallback) {
    const std::string text = get(key);
    value = fallback;
    for (size_t i = 0; i < table.size(); ++i)
        if (table[i] == text)
            value = static_cast<T>(i);
}

void IniReader::vertices(const std::string& countKey, const std::string& prefix,
                         std::vector<ChartPosition>& positions) {
    positions.resize(count(countKey, [&](size_t i) { return hasSection(prefix + std::to_string(i)); }));
    for (size_t i = 0; i < positions.size(); ++i)
        in(prefix + std::to_string(i)).position(positions[i]);
}

template <class T>
void IniWriter::number(const std::string& key, T value) {
    ini_.set(section_, key, print(value));
}

void IniWriter::flag(const std::string& key, bool value) {
    ini_.set(section_, key, value ? "1" : "0");
}

void IniWriter::text(const std::string& key, const std::string& value) {
    ini_.set(section_, key, value);
}

void IniWriter::position(const ChartPosition& position) {
    number("Long", position.longitude);
    number("Lat", position.latitude);
}

template <class T>
void IniWriter::optional(const std::string& key, T value, bool isKnown) {
    ini_.set(section_, key, isKnown ? print(value) : std::string());
}

void IniWriter::optionalPosition(const std::string& index, const ChartPosition& position, bool isKnown) {
    optional("Long" + index, position.longitude, isKnown);
    optional("Lat" + index, position.latitude, isKnown);
}

template <class T>
void IniWriter::choice(const std::string& key, T value, const std::vector<std::string>& table, T fallback) {
    const size_t index = static_cast<size_t>(value);
    ini_.set(section_, key, table[index < table.size() ? index : static_cast<size_t>(fallback)]);
}

void IniWriter::vertices(const std::string& countKey, const std::string& prefix,
                         const std::vector<ChartPosition>& positions) {
    removeSections(prefix);
    number(countKey, static_cast<unsigned>(positions.size()));
    for (size_t i = 0; i < positions.size(); ++i)
        in(prefix + std::to_string(i)).position(positions[i]);
}

void IniWriter::removeSections(const std::string& prefix) {
    for (size_t i = 0; ini_.isSectionAvailable(prefix + std::to_string(i)); ++i)
        ini_.removeSection(prefix + std::to_string(i));
}

template void IniReader::number(const std::string&, double&);
template void IniReader::number(const std::string&, float&);
template void IniReader::number(const std::string&, uint8_t&);
template void IniReader::number(const std::string&, int16_t&);
template void IniReader::number(const std::string&, uint16_t&);
template void IniReader::number(const std::string&, int32_t&);
template void IniReader::number(const std::string&, uint32_t&);
template void IniReader::number(const std::string&, uint64_t&);
template void IniReader::optional(const std::string&, float&, bool&);
template void IniReader::optional(const std::string&, int32_t&, bool&);
template void IniReader::choice(const std::string&, int32_t&, const std::vector<std::string>&, int32_t);
template void IniReader::choice(const std::string&, uint32_t&, const std::vector<std::string>&, uint32_t);
template void IniWriter::number(const std::string&, double);
template void IniWriter::number(const std::string&, float);
template void IniWriter::number(const std::string&, uint8_t);
template void IniWriter::number(const std::string&, int16_t);
template void IniWriter::number(const std::string&, uint16_t);
template void IniWriter::number(const std::string&, int32_t);
template void IniWriter::number(const std::string&, uint32_t);
template void IniWriter::number(const std::string&, uint64_t);
template void IniWriter::optional(const std::string&, float, bool);
template void IniWriter::optional(const std::string&, int32_t, bool);
template void IniWriter::choice(const std::string&, int32_t, const std::vector<std::string>&, int32_t);
template void IniWriter::choice(const std::string&, uint32_t, const std::vector<std::string>&, uint32_t);

} // namespace skyvane
