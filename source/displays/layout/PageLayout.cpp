#include "displays/layout/PageLayout.h"

#include "core/ini/IniFile.h"
#include "core/ini/ReadValue.h"
#include "core/text/Numbers.h"

#include <algorithm>

namespace skyvane {

namespace {

int pageOf(IniFile& ini, const std::string& section) {
    return std::max(0, std::min(toInt(readValue(ini, section, "Page")), PageLayout::maximumPage));
}

template <class Visit>
void forEachPanelSection(IniFile& ini, Visit visit) {
    const int count = readPanelCount(ini);
    for (int i = 0; i < count; ++i) {
        const std::string section = "P" + toText(i);
        if (ini.isSectionAvailable(section))
            visit(section);
    }
}

/// Truncated; a hundred screens off is as good as any number beyond. NaN is 0.
int pixels(double fraction, int extent, int offset) {
    const double limited = fraction >= -100.0 ? std::min(fraction, 100.0) : fraction < -100.0 ? -100.0 : 0.0;
    return static_cast<int>(limited * extent + offset);
}

} // namespace

PanelFractions readFractions(IniFile& ini, const std::string& section) {
    const auto number = [&](const char* key) { return toDouble(readValue(ini, section, key)); };
    return {number("ViewPortSX"), number("ViewPortSY"), number("ViewPortTX"), number("ViewPortTY")};
}

void writeFractions(IniFile& ini, const std::string& section, const PanelFractions& fractions) {
    ini.set(section, "ViewPortSX", toText(fractions.left));
    ini.set(section, "ViewPortSY", toText(fractions.top));
    ini.set(section, "ViewPortTX", toText(fractions.right));
    ini.set(section, "ViewPortTY", toText(fractions.bottom));
}

irr::core::rect<int> panelRect(const PanelFractions& fractions, const PanelArea& area) {
    const int height = area.bottom - area.top;
    irr::core::rect<int> rect(pixels(fractions.left, area.width, 0), pixels(fractions.top, height, area.top),
                              pixels(fractions.right, area.width, 0), pixels(fractions.bottom, height, area.top));
    rect.repair();
    return rect;
}

PageLayout PageLayout::read(IniFile& ini, const PanelArea& area, bool portrait) {
    PageLayout layout;
    forEachPanelSection(ini, [&](const std::string& section) {
        const int page = pageOf(ini, section);
        layout.pageCount = std::max(layout.pageCount, page + 1);
        if (toBool(readValue(ini, section, "Portrait")) != portrait)
            return;
        layout.panels.push_back({section, toInt(readValue(ini, section, "FactoryIndex"), -1), page,
                                 panelRect(readFractions(ini, section), area)});
    });
    return layout;
}

int PageLayout::pageAt(int page, int steps) const {
    const int moved = (page + steps % pageCount) % pageCount;
    return moved < 0 ? moved + pageCount : moved;
}

int readPanelCount(IniFile& ini) {
    return static_cast<int>(
        std::clamp(toDouble(readValue(ini, "", "PanelCount")), 0.0, static_cast<double>(PageLayout::maximumPanels)));
}

int calcPageCountFromIni(IniFile& ini) {
    int count = 1;
    forEachPanelSection(ini, [&](const std::string& section) { count = std::max(count, pageOf(ini, section) + 1); });
    return count;
}

bool cleanPage(IniFile& ini, int page) {
    bool used = false;
    forEachPanelSection(ini, [&](const std::string& section) { used = used || pageOf(ini, section) == page; });
    if (used)
        return false;
    forEachPanelSection(ini, [&](const std::string& section) {
        const int own = pageOf(ini, section);
        if (own > page)
            ini.set(section, "Page", toText(own - 1));
    });
    return true;
}

} // namespace skyvane
