#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace skyvane {

// Texts and numbers of source files, which hold anything.

/// Idents, names and services are cut behind so many bytes, remarks behind more.
constexpr size_t LongestName = 200;
constexpr size_t LongestRemarks = 8000;

std::string_view trimmed(std::string_view text);
/// Pieces between blanks and tabs, at most `most`; the last one is the rest of the text then, trimmed.
std::vector<std::string_view> splitAtBlanks(std::string_view text, size_t most);
std::string upperCase(std::string_view text);

/// The text as charts hold it: trimmed, UTF-8 (bytes that aren't count as Windows' code page 1252), control characters
/// as blanks, and not longer than `most`.
std::string cleanText(std::string_view text, size_t most = LongestName);

/// Adds a line to remarks that end before their limit.
void addRemark(std::string& remarks, const std::string& line);

/// The whole text as a number within limits; nothing otherwise.
std::optional<double> readNumber(std::string_view text, double least, double greatest);
/// The same, rounded to a whole number.
std::optional<int> readWhole(std::string_view text, int least, int greatest);
/// Decimal degrees, longitude -180 to 360.
std::optional<ChartPosition> readPosition(std::string_view latitude, std::string_view longitude);

} // namespace skyvane
