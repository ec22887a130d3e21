#pragma once

#include "sensors/records/ISensorData.h"

#include <cctype>
#include <cstdint>
#include <string>
#include <vector>

namespace skyvane {

using Bytes = std::vector<uint8_t>;

/// Bytes from their hexadecimal digits; blanks separate fields.
inline Bytes fromHex(const std::string& text) {
    const auto digit = [](char c) { return static_cast<uint8_t>(c <= '9' ? c - '0' : c - 'A' + 10); };
    std::string digits;
    for (const char c : text)
        if (!std::isspace(static_cast<unsigned char>(c)))
            digits += c;
    Bytes bytes;
    for (size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes.push_back(static_cast<uint8_t>(digit(digits[i]) * 16 + digit(digits[i + 1])));
    return bytes;
}

inline Bytes formOf(ISensorData& record) {
    int length = -1;
    const auto* bytes = static_cast<const uint8_t*>(record.serialize(&length));
    return Bytes(bytes, bytes + length);
}

inline void readForm(ISensorData& record, Bytes form) {
    // A copy of exactly that size, so that a sanitizer sees a read behind it.
    record.deserialize(form.data(), static_cast<int>(form.size()));
}

} // namespace skyvane
