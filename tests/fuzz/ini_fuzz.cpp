#include "core/ini/IniFile.h"
#include "core/ini/IniIterator.h"

#include <cstdint>
#include <cstdlib>

// What a document writes reads back as the same document. A key that is empty or ends in a blank has no text form of
// its own, so it is left out.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    skyvane::IniFile read;
    read.setFromString(std::string(reinterpret_cast<const char*>(data), size).c_str());
    skyvane::IniFile document;
    for (const auto it = read.newIterator(); it->isSectionAvail(); it->nextSection())
        for (; it->isValueAvail(); it->nextValue())
            if (!it->currentKey().empty() && it->currentKey().back() != ' ')
                document.set(it->currentSection(), it->currentKey(), it->currentValue());
    skyvane::IniFile again;
    again.setFromString(document.toString().c_str());
    if (again.toString() != document.toString())
        std::abort();
    return 0;
}
