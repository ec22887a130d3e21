// Any configuration document gives pages that can be drawn: counts bounded, rectangles in order.
#include "core/ini/IniFile.h"
#include "displays/layout/PageLayout.h"

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace skyvane;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    IniFile ini;
    ini.setFromString(std::string(reinterpret_cast<const char*>(data), size).c_str());
    const PageLayout layout = PageLayout::read(ini, {1280, 0, 720}, size % 2);
    if (layout.pageCount < 1 || layout.pageCount != calcPageCountFromIni(ini))
        std::abort();
    for (const PageLayout::Panel& panel : layout.panels)
        if (!panel.rect.isValid() || panel.page < 0 || panel.page >= layout.pageCount)
            std::abort();
    cleanPage(ini, 1);
    return 0;
}
