#include "core/system/MemoryTest.h"

#include <sys/sysinfo.h>

namespace skyvane {

unsigned long long readInstalledMemory() {
    struct sysinfo info {};
    return sysinfo(&info) == 0 ? static_cast<unsigned long long>(info.totalram) * info.mem_unit : 0;
}

bool isMemoryEnough(unsigned long long bytes) {
    return bytes > 998999999ull;
}

std::wstring notEnoughMemoryText(unsigned long long bytes) {
    return L"Error: Not enough memory (" + std::to_wstring(bytes >> 20) +
           L"MB RAM) installed.\nAt least 1024MB RAM are required to run \"Skyvane\".";
}

} // namespace skyvane
