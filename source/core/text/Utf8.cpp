#include "core/text/Utf8.h"

#include <cstdint>

namespace skyvane {

namespace {

bool isScalar(uint32_t point) {
    return point <= 0x10FFFF && (point < 0xD800 || point > 0xDFFF);
}

// Continuation bytes that follow a first byte; -1 for one that can't be first.
int continuationsAfter(uint8_t first) {
    if (first < 0x80)
        return 0;
    if (first >= 0xC2 && first <= 0xDF)
        return 1;
    if (first >= 0xE0 && first <= 0xEF)
        return 2;
    if (first >= 0xF0 && first <= 0xF4)
        return 3;
    return -1;
}

// The code point at i, with i moved behind it; '?' for a malformed sequence, with i moved behind its bytes.
wchar_t decodeNext(const std::string& bytes, size_t& i) {
    static constexpr uint32_t smallest[] = {0, 0x80, 0x800, 0x10000};
    const uint8_t first = static_cast<uint8_t>(bytes[i++]);
    const int count = continuationsAfter(first);
    if (count <= 0)
        return count == 0 ? static_cast<wchar_t>(first) : L'?';
    uint32_t point = first & (0x3Fu >> count);
    int taken = 0;
    for (; taken < count && i < bytes.size() && (static_cast<uint8_t>(bytes[i]) & 0xC0) == 0x80; ++taken, ++i)
        point = point << 6 | (static_cast<uint8_t>(bytes[i]) & 0x3Fu);
    const bool good = taken == count && point >= smallest[count] && isScalar(point);
    return good ? static_cast<wchar_t>(point) : L'?';
}

} // namespace

std::wstring decodeUtf8(const std::string& bytes) {
    std::wstring text;
    text.reserve(bytes.size());
    for (size_t i = 0; i < bytes.size();)
        text += decodeNext(bytes, i);
    return text;
}

std::string encodeUtf8(const std::wstring& text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (const wchar_t character : text) {
        const uint32_t point = static_cast<uint32_t>(character);
        const auto continuation = [point](int shift) { return static_cast<char>(0x80 | (point >> shift & 0x3F)); };
        if (point < 0x80)
            bytes += static_cast<char>(point);
        else if (point < 0x800)
            bytes += {static_cast<char>(0xC0 | point >> 6), continuation(0)};
        else if (!isScalar(point))
            bytes += '?';
        else if (point < 0x10000)
            bytes += {static_cast<char>(0xE0 | point >> 12), continuation(6), continuation(0)};
        else
            bytes += {static_cast<char>(0xF0 | point >> 18), continuation(12), continuation(6), continuation(0)};
    }
    return bytes;
}

} // namespace skyvane
