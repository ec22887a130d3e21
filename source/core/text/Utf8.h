#pragma once

#include <string>

namespace skyvane {

/// UTF-8 into wide characters, one per code point. Every malformed sequence (cut short, overlong, a surrogate, beyond
/// U+10FFFF, a stray continuation) gives one "?"; decoding goes on at the first byte that can't belong to it.
std::wstring decodeUtf8(const std::string& bytes);

/// Wide characters into UTF-8; what is no code point gives "?".
std::string encodeUtf8(const std::wstring& text);

} // namespace skyvane
