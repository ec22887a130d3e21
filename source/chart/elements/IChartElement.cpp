#include "chart/elements/IChartElement.h"

#include "chart/elements/HypertextPage.h"
#include "core/ini/IniFile.h"

namespace skyvane {

std::string IChartElement::createDescriptionString() const {
    IniFile document;
    writeToIni(&document);
    return document.toString();
}

ChartPosition IChartElement::getAreaDefiningPoint(int index) const {
    return index == 0 ? getPosition() : ChartPosition();
}

std::string IChartElement::createHTI(bool) const {
    HypertextPage page;
    page.line("n/A");
    return page.text();
}

} // namespace skyvane
