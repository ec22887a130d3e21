#pragma once

#include <string>
#include <string_view>

namespace skyvane {

/// Numbers in documents and texts, independent of the locale.

/// The leading number of a text after blanks, as stream extraction reads it; `fallback` (0) when there is none, when it
/// doesn't fit the type, or when it isn't finite.
int toInt(std::string_view text, int fallback = 0);
unsigned toUnsigned(std::string_view text, unsigned fallback = 0);
double toDouble(std::string_view text, double fallback = 0.0);
/// Non-zero integers are true.
bool toBool(std::string_view text, bool fallback = false);

/// The shortest decimal text that reads back as the same number.
std::string toText(double value);
std::string toText(int value);
/// With a fixed number of decimals (0 to 100), no "-0". The halves of the shortest decimal text round away from zero,
/// so that 1.005 gives 1.01 and not the 1.00 of its binary neighbour.
std::string toFixedText(double value, int decimals);

/// Nearest whole number, halves away from zero; limited to int's range, 0 for NaN.
int roundHalfAway(double value);

} // namespace skyvane
