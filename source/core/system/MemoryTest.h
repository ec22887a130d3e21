#pragma once

#include <string>

namespace skyvane {

/// Bytes of installed memory; 0 when the system can't tell.
unsigned long long readInstalledMemory();

/// 999,000,000 bytes pass, in spite of the words that the user reads.
bool isMemoryEnough(unsigned long long bytes);
std::wstring notEnoughMemoryText(unsigned long long bytes);

} // namespace skyvane
